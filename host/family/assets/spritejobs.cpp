#include "family/assets/spritejobs.h"

#include "family/assets/pixelstore.h"
#include "family/assets/spritecollection.h"
#include "family/assets/workpool.h"

#include <algorithm>

namespace Family {

namespace {

constexpr int BatchSize = 256;

struct PackedSprite
{
    int row;
    PackedPixels pixels;
    QVector<QRgb> colors;
};

QVector<PackedSprite> batch(const SpriteCollection& sprites, const QVector<int>& rows, int first)
{
    QVector<PackedSprite> packed;
    for (int i = first; i < std::min(first + BatchSize, rows.size()); ++i) {
        PackedSprite one{rows[i], {}, {}};
        const FamilySprite* sprite = sprites.sprite(rows[i]);
        if (sprite && sprite->state.pixels) {
            one.pixels = PackedPixels(*sprite->state.pixels.get());
            one.colors = sprite->shownColors();
        }
        packed.append(one);
    }
    return packed;
}

}  // namespace

bool forEachImage(const SpriteCollection& sprites, const ImageJob& job)
{
    const AssetHistory::Hold hold(sprites.steps());
    QVector<PackedSprite> packed;
    QVector<PackedSprite> waiting = batch(sprites, job.rows, 0);
    WorkPool pool(job.threads);
    for (int first = 0; first < job.rows.size(); first += BatchSize) {
        packed = std::exchange(waiting, {});
        pool.start(packed.size(), [&job, &packed](int i) {
            const PackedSprite& one = packed.at(i);
            job.work(one.row, imageOfRows(one.pixels.format, one.pixels.rows(), one.colors));
        });
        waiting = batch(sprites, job.rows, first + BatchSize);
        pool.wait();
        if (job.progress && !job.progress(first + packed.size())) {
            return false;
        }
    }
    return true;
}

}  // namespace Family
