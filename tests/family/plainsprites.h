#pragma once

#include "family/assets/palettelist.h"
#include "family/assets/remapmodel.h"
#include "family/assets/spritecollection.h"

#include <QImage>
#include <QStringList>

#include <algorithm>
#include <vector>

/// A collection of sprites in the plainest form: what the real one has to agree with.
struct PlainSprites
{
    struct Sprite
    {
        Family::AssetId id;
        QPoint axis;
        QImage pixels;  // without colours
        int palette = -1;
    };
    struct Palette
    {
        int name = 0;  // what sprites know it by
        Family::AssetId id;
        Family::PaletteColors colors{};
    };

    std::vector<Sprite> sprites;
    std::vector<Palette> palettes;
    std::vector<std::pair<Family::AssetId, Family::AssetId>> remaps;
    int lastName = 0;

    static QString pixelText(const QImage& image)
    {
        QByteArray rows;
        for (int y = 0; y < image.height(); ++y) {
            rows.append(reinterpret_cast<const char*>(image.constScanLine(y)),
                        image.width() * image.depth() / 8);
        }
        return QStringLiteral("%1x%2x%3 %4")
            .arg(image.width())
            .arg(image.height())
            .arg(image.depth())
            .arg(QString::fromLatin1(rows.toHex()));
    }

    int rowOf(int name) const
    {
        const auto found = std::find_if(palettes.begin(), palettes.end(),
                                        [name](const Palette& p) { return p.name == name; });
        return found == palettes.end() ? -1 : int(found - palettes.begin());
    }

    QStringList lines() const
    {
        QStringList lines;
        for (const Sprite& sprite : sprites) {
            lines += QStringLiteral("sprite %1 at %2,%3 palette %4: %5")
                         .arg(sprite.id.text())
                         .arg(sprite.axis.x())
                         .arg(sprite.axis.y())
                         .arg(rowOf(sprite.palette))
                         .arg(pixelText(sprite.pixels));
        }
        for (const Palette& palette : palettes) {
            lines += paletteLine(palette.id, palette.colors);
        }
        for (const auto& remap : remaps) {
            lines += remap.first.text() + QStringLiteral(" shown as ") + remap.second.text();
        }
        return lines;
    }

    static QString paletteLine(Family::AssetId id, const Family::PaletteColors& colors)
    {
        const auto bytes = QByteArray::fromRawData(reinterpret_cast<const char*>(colors.data()),
                                                   int(sizeof colors));
        return QStringLiteral("palette %1: %2").arg(id.text(), QString::fromLatin1(bytes.toHex()));
    }

    static QStringList linesOf(const Family::SpriteCollection& collection)
    {
        QStringList lines;
        for (const auto& sprite : collection.items()) {
            const auto* palette = static_cast<Family::FamilyPalette*>(sprite->palette());
            lines += QStringLiteral("sprite %1 at %2,%3 palette %4: %5")
                         .arg(sprite->property(QStringLiteral("Identifier")).toString())
                         .arg(sprite->axis().x())
                         .arg(sprite->axis().y())
                         .arg(palette ? int(palette->index()) : -1)
                         .arg(pixelText(sprite->image()));
        }
        for (const auto& palette : collection.palettes()->items()) {
            lines += paletteLine(palette->id(), palette->state.colors);
        }
        for (const auto& remap : collection.palettes()->remaps()->items()) {
            lines +=
                remap->state.from.text() + QStringLiteral(" shown as ") + remap->state.to.text();
        }
        return lines;
    }

    bool hasId(Family::AssetId id) const
    {
        return std::any_of(sprites.begin(), sprites.end(),
                           [id](const Sprite& s) { return s.id == id; });
    }
    bool hasPaletteId(Family::AssetId id) const
    {
        return std::any_of(palettes.begin(), palettes.end(),
                           [id](const Palette& p) { return p.id == id; });
    }

    /// The palette with these colours, which is added if there is none.
    int ensure(const Family::PaletteColors& colors)
    {
        for (const Palette& palette : palettes) {
            if (palette.colors == colors) {
                return palette.name;
            }
        }
        Family::AssetId id = palettes.empty() ? Family::AssetId{1, 0} : palettes.back().id;
        do {
            id = Family::AssetId::fromKey(id.key() + 1);
        } while (hasPaletteId(id));
        palettes.push_back({++lastName, id, colors});
        return lastName;
    }

    void dropPalette(int row)
    {
        for (Sprite& sprite : sprites) {
            if (sprite.palette == palettes[size_t(row)].name) {
                sprite.palette = -1;
            }
        }
        palettes.erase(palettes.begin() + row);
    }

    void removeUnused()
    {
        for (int row = int(palettes.size()) - 1; row >= 0; --row) {
            const Palette& palette = palettes[size_t(row)];
            const bool isUsed =
                std::any_of(sprites.begin(), sprites.end(),
                            [&](const Sprite& s) { return s.palette == palette.name; }) ||
                std::any_of(remaps.begin(), remaps.end(), [&](const auto& r) {
                    return r.first == palette.id || r.second == palette.id;
                });
            if (!isUsed) {
                dropPalette(row);
            }
        }
    }

    void removeDuplicates()
    {
        for (size_t row = 1; row < palettes.size();) {
            const Palette later = palettes[row];
            const auto earlier =
                std::find_if(palettes.begin(), palettes.begin() + int(row),
                             [&](const Palette& p) { return p.colors == later.colors; });
            const bool isRemapped = std::any_of(remaps.begin(), remaps.end(),
                                                [&](const auto& r) { return r.first == later.id; });
            if (earlier == palettes.begin() + int(row) || isRemapped) {
                ++row;
                continue;
            }
            for (Sprite& sprite : sprites) {
                sprite.palette = sprite.palette == later.name ? earlier->name : sprite.palette;
            }
            for (auto& remap : remaps) {
                remap.second = remap.second == later.id ? earlier->id : remap.second;
            }
            palettes.erase(palettes.begin() + int(row));
        }
    }
};
