#include "operations/media/paletteedits.h"

#include "family/assets/indexmapping.h"
#include "family/assets/spritecollection.h"
#include "operations/media/spriteedits.h"

#include <zorv/core/progress.h>
#include <zorv/media/tools/colorchanges.h>

#include <QCoreApplication>
#include <QSet>

namespace Operations {

using Family::AssetHistory;
using Family::FamilyPalette;
using Family::PaletteColors;
using Family::PaletteList;
using Family::SpriteCollection;

namespace {

/// Makes the texts of this file known to translators.
class Text
{
    Q_DECLARE_TR_FUNCTIONS(Operations::PaletteEdits)
};

/// One line for each broken palette among `rows`.
QStringList brokenPalettes(const PaletteList& palettes, const QVector<int>& rows)
{
    QStringList lines;
    for (const int row : rows) {
        const FamilyPalette* palette = palettes.palette(row);
        if (palette && palette->isBroken()) {
            lines.append(Text::tr("The record of the palette %1 in the file is broken. Nothing is "
                                  "changed. Remove broken records first, or leave it out.")
                             .arg(palette->id().text()));
        }
    }
    return lines;
}

/// The rows of the sprites that use one of the palettes.
QVector<int> spritesWith(const SpriteCollection& sprites, const QVector<int>& palettes)
{
    QSet<const FamilyPalette*> wanted;
    for (const int row : palettes) {
        wanted.insert(sprites.palettes()->palette(row));
    }
    QVector<int> rows;
    for (const auto& sprite : sprites.items()) {
        const FamilyPalette* palette = sprite->state.palette.get();
        if (palette && wanted.contains(palette)) {
            rows.append(sprite->row);
        }
    }
    return rows;
}

}  // namespace

MediaResult changePalettes(SpriteCollection* sprites, const QVector<int>& rows,
                           const QString& title,
                           const std::function<int(Zorv::RGBA* colors)>& change)
{
    PaletteList* palettes = sprites->palettes();
    MediaResult result;
    result.errors = brokenPalettes(*palettes, rows);
    if (!result.errors.isEmpty()) {
        return result;
    }
    const AssetHistory::Step step(sprites->editHistory(), title);
    for (const int row : rows) {
        if (FamilyPalette* palette = palettes->palette(row)) {
            PaletteColors colors = palette->state.colors;
            if (const int count = change(colors.data())) {
                palettes->setColors(palette, colors, Zorv::Palette::KeepPixels);
                result.done += count;
            }
        }
    }
    return result;
}

QVector<int> palettesShownTogether(const SpriteCollection& sprites, QVector<int> rows)
{
    const PaletteList& palettes = *sprites.palettes();
    QVector<bool> isIn(palettes.count(), false);
    for (const int row : qAsConst(rows)) {
        if (palettes.palette(row)) {
            isIn[row] = true;
        }
    }
    // Each palette that is added may require others.
    for (bool hasGrown = true; hasGrown;) {
        hasGrown = false;
        for (const auto& palette : palettes.items()) {
            const int shown = palettes.shown(palette.get())->row;
            if (isIn[palette->row] != isIn[shown]) {
                isIn[palette->row] = isIn[shown] = hasGrown = true;
            }
        }
    }
    rows.clear();
    for (int row = 0; row < isIn.size(); ++row) {
        if (isIn[row]) {
            rows.append(row);
        }
    }
    return rows;
}

MediaResult reorderPalettes(SpriteCollection* sprites, const QVector<int>& rows,
                            const Zorv::PaletteOrder& order)
{
    sprites->refresh();
    if (order == Zorv::sameOrder()) {
        return {};
    }
    const QVector<int> together = palettesShownTogether(*sprites, rows);
    MediaResult result;
    result.errors = brokenPalettes(*sprites->palettes(), together);
    if (!result.errors.isEmpty()) {
        sprites->editHistory().nameByFirstPart();
        return result;
    }
    const QString title = Text::tr("Reorder palette");
    const AssetHistory::Step step(sprites->editHistory(), title);
    Zorv::Progress progress(title, 0);
    Family::MappingJob job;
    job.mappings = {{spritesWith(*sprites, together), Zorv::inverse(order)}};
    job.progress = [&](int done, int count) { return progress.update(done, count); };
    QVector<int> broken;
    if (!Family::mapIndices(sprites, job, &broken)) {
        sprites->editHistory().nameByFirstPart();
        result.isCanceled = true;
        return result;
    }
    const auto reordered = [&order](Zorv::RGBA* colors) {
        Zorv::reorder(colors, order);
        return 1;
    };
    result = changePalettes(sprites, together, title, reordered);
    result.warnings = brokenSprites(*sprites, broken);
    return result;
}

MediaResult replaceColor(SpriteCollection* sprites, const QVector<int>& rows, Zorv::RGBA from,
                         Zorv::RGBA to)
{
    return changePalettes(sprites, rows, Text::tr("Replace colour"),
                          [&](Zorv::RGBA* colors) { return Zorv::replaceColor(colors, from, to); });
}

MediaResult fillRamp(SpriteCollection* sprites, const QVector<int>& rows, quint8 first, quint8 last,
                     Zorv::ColorSpace space)
{
    const int least = std::min(first, last);
    const int most = std::max(first, last);
    return changePalettes(sprites, rows, Text::tr("Make a ramp"), [&](Zorv::RGBA* colors) {
        const QVector<Zorv::RGBA> ramp =
            Zorv::rampBetween(colors[least], colors[most], most - least + 1, space);
        std::copy(ramp.begin(), ramp.end(), colors + least);
        return ramp.size();
    });
}

MediaResult shiftHues(SpriteCollection* sprites, const QVector<int>& rows, const bool* selection,
                      double degrees)
{
    return changePalettes(sprites, rows, Text::tr("Shift hue"), [=](Zorv::RGBA* colors) {
        int count = 0;
        for (int i = 0; i < 256; ++i) {
            const Zorv::RGBA before = colors[i];
            colors[i] = selection[i] ? Zorv::shiftHue(before, degrees) : before;
            count += colors[i] == before ? 0 : 1;
        }
        return count;
    });
}

FamilyPalette* duplicatePalette(SpriteCollection* sprites, int row)
{
    PaletteList* palettes = sprites->palettes();
    const FamilyPalette* palette = palettes->palette(row);
    if (!palette) {
        return nullptr;
    }
    Zorv::RGBA colors[256];
    std::copy(palette->state.colors.begin(), palette->state.colors.end(), colors);
    const AssetHistory::Step step(sprites->editHistory(), Text::tr("Duplicate palette"));
    return palettes->insert(row + 1, colors, palette->id().text(), true);
}

}  // namespace Operations
