#include "operations/media/paletteuses.h"

#include "family/assets/spritecollection.h"
#include "family/assets/spritejobs.h"

#include <zorv/core/progress.h>

#include <QCoreApplication>
#include <QHash>
#include <QMutex>

namespace Operations {

using Family::PixelData;

namespace {

/// Makes the texts of this file known to translators.
class Text
{
    Q_DECLARE_TR_FUNCTIONS(Operations::PaletteUses)
};

/// The sprites of a palette that share the same pixels.
struct Alike
{
    int palette;
    QVector<int> rows;
};

QHash<int, Alike> alikeSprites(const Family::SpriteCollection& sprites, PaletteUseCount* count)
{
    QHash<std::pair<const PixelData*, int>, int> firsts;
    QHash<int, Alike> alike;
    for (const auto& sprite : sprites.items()) {
        const Family::FamilyPalette* palette = sprite->state.palette.get();
        if (!palette) {
            continue;
        }
        ++count->palettes[palette->row].sprites;
        const PixelData* pixels = sprite->state.pixels.get();
        if (pixels) {
            const auto key = std::make_pair(pixels, palette->row);
            const int first = *firsts.insert(key, firsts.value(key, sprite->row));
            alike[first].palette = palette->row;
            alike[first].rows.append(sprite->row);
        }
    }
    return alike;
}

std::array<qint64, 256> histogram(const QImage& image)
{
    std::array<qint64, 256> counts{};
    for (int y = 0; y < image.height(); ++y) {
        const uchar* const row = image.constScanLine(y);
        for (int x = 0; x < image.width(); ++x) {
            ++counts[row[x]];
        }
    }
    return counts;
}

}  // namespace

PaletteUseCount countUses(const Family::SpriteCollection& sprites)
{
    PaletteUseCount count;
    count.palettes.resize(sprites.palettes()->count());
    const QHash<int, Alike> alike = alikeSprites(sprites, &count);
    QMutex mutex;
    Family::ImageJob job;
    job.rows = alike.keys().toVector();
    job.work = [&](int row, const QImage& image) {
        const std::array<qint64, 256> pixels = histogram(image);
        const Alike& same = *alike.constFind(row);
        const QMutexLocker lock(&mutex);
        if (image.isNull()) {
            count.broken += same.rows;
        }
        for (size_t i = 0; i < pixels.size(); ++i) {
            PaletteUses::Entry& entry = count.palettes[same.palette].entries[i];
            entry.sprites += pixels[i] > 0 ? same.rows.size() : 0;
            entry.pixels += pixels[i] * same.rows.size();
        }
    };
    Zorv::Progress progress(Text::tr("Uses of colours"), job.rows.size());
    job.progress = [&](int done) { return progress.update(done); };
    count.isCanceled = !Family::forEachImage(sprites, job);
    std::sort(count.broken.begin(), count.broken.end());
    return count;
}

}  // namespace Operations
