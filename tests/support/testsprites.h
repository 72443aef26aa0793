#pragma once

#include "cache/palettes.h"
#include "cache/spritenumber.h"
#include "cache/sprites.h"
#include "support/stagedata.h"

#include <memory>
#include <vector>

class TestSprites;

/// A sprite with a number, which counts how often it was decoded.
class TestSprite : public StageData::Sprite
{
public:
    TestSprite(TestSprites* sprites, Zorv::SpriteNumber own, const QImage& image)
        : Sprite(image), number(own), m_sprites(sprites)
    {
    }

    QImage image() const override;

    /// "Identifier", "Group", "Number".
    QVariant property(const QString& name) const override;

    Zorv::SpriteNumber number;

private:
    TestSprites* m_sprites;
};

/// Palettes that are not there; they tell that colours have changed when a test says so.
class TestPalettes : public Zorv::Palettes
{
    Q_OBJECT

public:
    explicit TestPalettes(TestSprites* sprites) : m_sprites(sprites) {}

    int rowCount(const QModelIndex& = {}) const override { return 0; }
    QVariant data(const QModelIndex&, int) const override { return {}; }
    int count() const override { return 0; }
    void setCurrent(int) override {}
    Zorv::Palette* palette(int) const override { return nullptr; }
    Zorv::Palette* insert(int, const Zorv::RGBA (&)[256], const QVariant&, bool) override
    {
        return nullptr;
    }
    Zorv::Palette* addPalette(const Zorv::RGBA (&)[256], const QVariant&, bool) override
    {
        return nullptr;
    }
    void remove(int) override {}
    int find(int, const QVariant&) const override { return -1; }
    void clear() override {}
    void removeUnused() override {}
    void removeDuplicates() override {}
    void beginUpdate(const QString&) override {}
    void endUpdate() override {}
    QAbstractItemModel* remapModel() override { return nullptr; }
    Zorv::Sprites* sprites() const override;

private:
    TestSprites* m_sprites;
};

/// A collection in memory, which signals as a host's does and keeps no history.
class TestSprites : public Zorv::Sprites
{
    Q_OBJECT

public:
    TestSprites() : m_palettes(this) {}
    ~TestSprites() override { emit closing(); }

    void insert(int row, Zorv::SpriteNumber number, const QImage& image);
    void setImage(int row, const QImage& image);

    /// Reads the file anew: other sprites, which are the same.
    void reload();

    void refresh() override {}
    void removeSprite(int index) override;
    void setCurrent(int index) override { currentIndex = index; }
    TestPalettes* palettes() const override { return &m_palettes; }
    unsigned count() const override { return unsigned(m_items.size()); }
    TestSprite* sprite(int index) const override;
    Zorv::Sprite* addSprite() override { return nullptr; }
    void beginChange(const QString&) override {}
    void endChange() override {}
    void move(unsigned from, unsigned to) override;
    void remove(unsigned index) override { removeSprite(int(index)); }

    /// By number.
    void autoOrganize() override;

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    int checkErrors() override { return 0; }
    bool isEmpty() const override { return m_items.empty(); }
    void release() override { delete this; }

    mutable int decodings = 0;

private:
    std::vector<std::unique_ptr<TestSprite>> m_items;
    mutable TestPalettes m_palettes;
};
