#include "family/assets/spritejobs.h"

#include "family/assets/pixelstore.h"
#include "family/assets/spritecollection.h"

#include <QThread>
#include <QThreadPool>

#include <algorithm>
#include <atomic>

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

// Takes one after the other off a batch, until none is left.
class Worker final : public QRunnable
{
public:
    Worker(const QVector<PackedSprite>& packed, std::atomic_int& next, const ImageJob& job)
        : m_packed(packed), m_next(next), m_job(job)
    {
    }

    void run() override
    {
        for (int i = m_next++; i < m_packed.size(); i = m_next++) {
            const PackedSprite& one = m_packed[i];
            m_job.work(one.row, imageOfRows(one.pixels.format, one.pixels.rows(), one.colors));
        }
    }

private:
    const QVector<PackedSprite>& m_packed;
    std::atomic_int& m_next;
    const ImageJob& m_job;
};

}  // namespace

bool forEachImage(const SpriteCollection& sprites, const ImageJob& job)
{
    const AssetHistory::Hold hold(sprites.steps());
    const int threads = job.threads > 0 ? job.threads : QThread::idealThreadCount();
    QThreadPool pool;
    pool.setMaxThreadCount(threads);
    QVector<PackedSprite> waiting = batch(sprites, job.rows, 0);
    for (int first = 0; first < job.rows.size(); first += BatchSize) {
        const QVector<PackedSprite> packed = std::exchange(waiting, {});
        std::atomic_int next{0};
        for (int i = 0; i < threads; ++i) {
            pool.start(new Worker(packed, next, job));
        }
        waiting = batch(sprites, job.rows, first + BatchSize);
        pool.waitForDone();
        if (job.progress && !job.progress(first + packed.size())) {
            return false;
        }
    }
    return true;
}

}  // namespace Family
