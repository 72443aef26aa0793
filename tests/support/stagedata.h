#pragma once

#include "cache/palette.h"
#include "cache/sprite.h"
#include "cache/spriteprovider.h"
#include "code/codedoc/contactboxescode.h"
#include "graphics/texture.h"

#include <QImage>

#include <algorithm>
#include <memory>
#include <vector>

/// What a stage shows, held in memory: sprites, palettes, lists of boxes.
namespace StageData {

class Palette : public Zorv::Palette
{
public:
    explicit Palette(const Zorv::RGBA (&colors)[256]) { setColors(colors, 0); }

    unsigned index() const override { return 0; }
    void reload() override { m_texture.reset(); }
    void toPalette(Zorv::RGBA (&colors)[256]) const override
    {
        std::copy(m_colors, m_colors + 256, colors);
    }
    void setColors(const Zorv::RGBA (&colors)[256], int) override
    {
        std::copy(colors, colors + 256, m_colors);
        reload();
    }
    Zorv::Palettes* owner() const override { return nullptr; }
    Zorv::Texture* texture() const override
    {
        if (!m_texture) {
            m_texture = std::make_unique<Zorv::Texture>(m_colors);
        }
        return m_texture.get();
    }
    QStringList propertyNames() const override { return {}; }
    QVariant property(const QString&) const override { return {}; }
    void setProperty(const QString&, const QVariant&) override {}

private:
    Zorv::RGBA m_colors[256];
    mutable std::unique_ptr<Zorv::Texture> m_texture;
};

class Sprite : public Zorv::Sprite
{
public:
    explicit Sprite(const QImage& image = QImage(), Zorv::Palette* palette = nullptr)
        : m_image(image), m_palette(palette)
    {
    }

    void duplicate() override {}
    void reload() override { m_texture.reset(); }
    void bindTexture() override {}
    void setImage(const QImage& image) override
    {
        m_image = image;
        reload();
    }
    void setImage(const QImage& image, bool, int, Zorv::Palette*) override { setImage(image); }
    Zorv::Palette* palette() const override { return m_palette; }
    QPoint axis() const override { return {}; }
    void setPalette(Zorv::Palette* palette) override { m_palette = palette; }
    void splitChannels() override {}
    QImage image() const override { return m_image; }
    QSize size() const override { return m_image.size(); }
    Zorv::Texture* texture() const override
    {
        if (!m_texture && !m_image.isNull()) {
            m_texture = std::make_unique<Zorv::Texture>(m_image);
        }
        return m_texture.get();
    }
    QStringList propertyNames() const override { return {}; }
    QVariant property(const QString&) const override { return {}; }
    void setProperty(const QString&, const QVariant&) override {}

private:
    QImage m_image;
    Zorv::Palette* m_palette;
    mutable std::unique_ptr<Zorv::Texture> m_texture;
};

/// What is known of each sprite is a list of values by their keys.
class Provider : public Zorv::SpriteProvider
{
public:
    struct Row
    {
        Zorv::Sprite* sprite = nullptr;
        QVector<QVariant> values;
    };

    unsigned count() const override { return unsigned(rows.size()); }
    Zorv::Sprite* at(unsigned index) const override { return rows.value(int(index)).sprite; }
    QVariant property(unsigned index, unsigned key) const override
    {
        return rows.value(int(index)).values.value(int(key));
    }

    QVector<Row> rows;
};

class Boxes;

class Box : public Zorv::ContactBoxCode
{
public:
    Box(const QRect& rect, Zorv::ContactBoxesCode* boxes) : m_rect(rect), m_boxes(boxes) {}

    QRect rect() const override { return m_rect; }
    void setRect(const QRect& rect) override { m_rect = rect; }
    Zorv::ContactBoxesCode* boxes() const override { return m_boxes; }
    int line() const override { return 0; }

private:
    QRect m_rect;
    Zorv::ContactBoxesCode* m_boxes;
};

class Boxes : public Zorv::ContactBoxesCode
{
public:
    explicit Boxes(Zorv::ContactBoxCode::BoxType type) : m_type(type) {}

    int count() const override { return int(m_boxes.size()); }
    Zorv::ContactBoxCode* at(int index) const override
    {
        return index >= 0 && index < count() ? m_boxes[size_t(index)].get() : nullptr;
    }
    Zorv::ContactBoxCode* add(const QRect& rect) override
    {
        m_boxes.push_back(std::make_unique<Box>(rect, this));
        return m_boxes.back().get();
    }
    void remove(int index) override { m_boxes.erase(m_boxes.begin() + index); }
    Zorv::ContactBoxCode::BoxType type() const override { return m_type; }
    Zorv::FrameCode* frame() const override { return nullptr; }
    Zorv::CodeDocument* document() const override { return nullptr; }

private:
    Zorv::ContactBoxCode::BoxType m_type;
    std::vector<std::unique_ptr<Box>> m_boxes;
};

}  // namespace StageData
