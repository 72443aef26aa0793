#include "family/assets/indexmapping.h"

#include "family/assets/pixelstore.h"
#include "family/assets/spritecollection.h"
#include "family/assets/workpool.h"

#include <zorv/media/colorconversion.h>

#include <QCoreApplication>
#include <QHash>
#include <algorithm>

// First all affected streams are collected, each once per map. Then they are unpacked, mapped and
// packed in batches on several threads; meanwhile the calling thread compares the results of the
// previous batch with existing pixels. Sprites change only at the end, in one step.

namespace Family {

namespace {

/// Translation context of this file.
class Text
{
    Q_DECLARE_TR_FUNCTIONS(Family::IndexMapping)
};

// The caller is called back between two batches, so they are small, but large enough to keep all
// threads busy.
constexpr int MostStreams = 256;
constexpr qint64 MostBytes = 8 << 20;

struct Stream
{
    PixelRef old;
    const IndexMap* map;
    PixelRef mapped;  // null if the old one is broken
};

struct Work
{
    PackedPixels packed;
    const IndexMap* map;
    QByteArray rows;  // empty if the stream is broken
    PackedPixels mapped;
    bool isSame = false;  // no pixel has changed
};

void doWork(Work* work)
{
    work->rows = work->packed.rows();
    if (work->rows.isEmpty()) {
        return;
    }
    const QByteArray old = work->rows;
    const IndexMap& map = *work->map;
    std::transform(old.begin(), old.end(), work->rows.begin(),
                   [&map](char pixel) { return char(map[uchar(pixel)]); });
    work->isSame = work->rows == old;
    if (!work->isSame) {
        work->mapped = PackedPixels::pack(work->packed.format, work->rows);
    }
}

class Mapping
{
public:
    Mapping(SpriteCollection* sprites, const MappingJob& job) : m_sprites(sprites), m_job(job) {}

    bool run(QVector<int>* broken);

private:
    void collect();
    void collect(const SpriteCollection::ItemPtr& sprite, const IndexMap* map);
    QVector<Work> nextBatch(int threads);
    void take(const QVector<Work>& batch);
    void change(QVector<int>* broken);

    SpriteCollection* m_sprites;
    const MappingJob& m_job;
    QVector<Stream> m_streams;
    QHash<std::pair<const PixelData*, const IndexMap*>, int> m_places;
    QVector<std::pair<SpriteCollection::ItemPtr, int>> m_meant;  // sprite and index of its stream
    QVector<SpriteCollection::ItemPtr> m_broken;
    int m_prepared = 0;
    int m_done = 0;
};

void Mapping::collect()
{
    for (const IndexMapping& mapping : m_job.mappings) {
        for (const int row : mapping.rows) {
            if (const SpriteCollection::ItemPtr sprite = m_sprites->items().value(row)) {
                collect(sprite, &mapping.map);
            }
        }
    }
}

void Mapping::collect(const SpriteCollection::ItemPtr& sprite, const IndexMap* map)
{
    const PixelRef& pixels = sprite->state.pixels;
    if (!sprite->fault().isEmpty()) {
        m_broken.append(sprite);
    } else if (pixels && pixels->format.bits == 8) {
        const auto key = std::make_pair(static_cast<const PixelData*>(pixels.get()), map);
        auto place = m_places.find(key);
        if (place == m_places.end()) {
            place = m_places.insert(key, m_streams.size());
            m_streams.append({pixels, map, {}});
        }
        m_meant.append({sprite, *place});
    }
}

QVector<Work> Mapping::nextBatch(int threads)
{
    QVector<Work> batch;
    for (qint64 bytes = 0; m_prepared < m_streams.size() && batch.size() < MostStreams &&
                           (batch.size() < threads || bytes < MostBytes);
         ++m_prepared) {
        const Stream& stream = m_streams.at(m_prepared);
        bytes += stream.old->format.byteCount();
        batch.append({PackedPixels(*stream.old.get()), stream.map, {}, {}});
    }
    return batch;
}

void Mapping::take(const QVector<Work>& batch)
{
    for (const Work& work : batch) {
        Stream& stream = m_streams[m_done++];
        if (work.isSame) {
            stream.mapped = stream.old;
        } else if (!work.mapped.stream.isEmpty()) {
            stream.mapped = m_sprites->store()->add(work.mapped, work.rows);
        }
    }
}

bool Mapping::run(QVector<int>* broken)
{
    collect();
    QVector<Work> working;
    QVector<Work> done;
    WorkPool pool(m_job.threads);  // destroyed before what it works on, also when cancelled
    const auto start = [&] {
        working = nextBatch(pool.threads());
        Work* const first = working.data();
        pool.start(working.size(), [first](int i) { doWork(first + i); });
    };
    start();
    while (!working.isEmpty()) {
        pool.wait();
        done = std::exchange(working, {});
        start();
        take(done);
        if (m_job.progress && !m_job.progress(m_done, m_streams.size())) {
            return false;
        }
    }
    change(broken);
    return true;
}

void Mapping::change(QVector<int>* broken)
{
    const AssetHistory::Step step(m_sprites->editHistory(), Text::tr("Change pixels"));
    for (const auto& [sprite, place] : qAsConst(m_meant)) {
        const Stream& stream = m_streams.at(place);
        if (!stream.mapped) {
            m_broken.append(sprite);
        } else if (stream.mapped != stream.old && sprite->row >= 0 &&
                   sprite->state.pixels == stream.old) {
            FamilySprite::State state = sprite->state;
            state.pixels = stream.mapped;
            m_sprites->change(sprite.get(), state);
        }
    }
    for (const SpriteCollection::ItemPtr& sprite : qAsConst(m_broken)) {
        broken->append(sprite->row);
    }
    std::sort(broken->begin(), broken->end());
}

}  // namespace

IndexMap nearestIndices(const PaletteColors& from, const PaletteColors& to)
{
    IndexMap map;
    for (size_t i = 0; i < from.size(); ++i) {
        const Zorv::RGBA color = from[i];
        map[i] = color == to[i]
                     ? quint8(i)
                     : Zorv::nearestColor({color.b, color.g, color.r, color.a}, to.data());
    }
    return map;
}

bool mapIndices(SpriteCollection* sprites, const MappingJob& job, QVector<int>* broken)
{
    const AssetHistory::Hold hold(sprites->steps());
    return Mapping(sprites, job).run(broken);
}

}  // namespace Family
