#include "family/assets/samplestore.h"

#include "family/assets/assetcache.h"
#include "family/assets/packedsamples.h"
#include "family/assets/samplepacking.h"

#include <zorv/cache/crc64.h>

namespace Family {

using Zorv::StreamCache;

namespace {

// Types of cache items; they must differ from those of pixels.
enum ItemType : unsigned char { PlainItem = 16, DeflatedItem = 17 };

unsigned char itemType(SamplePacking packing)
{
    return packing == SamplePacking::Plain ? PlainItem : DeflatedItem;
}

quint64 checksumOf(const QByteArray& data)
{
    return Zorv::crc64(reinterpret_cast<const uchar*>(data.constData()), unsigned(data.size()));
}

}  // namespace

SampleStore::SampleStore() : m_cache(newAssetCache()), m_ahead(std::make_shared<PackedAhead>())
{
    connect(m_cache.get(), &StreamCache::readFilter, this, &SampleStore::unpack,
            Qt::DirectConnection);
}

SampleStore::~SampleStore() = default;

SampleRef SampleStore::adopt(SamplePacking packing, const QByteArray& stream, qint64 plainSize,
                             quint64 plainCrc, quint64 streamCrc)
{
    auto* data = new SampleData(this, m_cache.get());
    data->packing = packing;
    data->plainSize = plainSize;
    data->plainCrc = plainCrc;
    data->streamCrc = streamCrc;
    data->fromData(stream, itemType(packing), data, plainCrc);
    m_byItem.insert(data->item, data);
    return SampleRef(data);
}

SampleRef SampleStore::add(const QByteArray& samples)
{
    if (samples.isEmpty()) {
        return {};
    }
    const std::shared_ptr<const PackedSamples> ahead = m_ahead->find(samples);
    StreamCache::Item* item =
        ahead ? m_cache->find(samples, ahead->plainCrc, ahead->stream, itemType(ahead->packing))
              : m_cache->find(samples, nullptr);
    if (item) {
        SampleData* data = m_byItem.value(item);
        ++data->refCount;
        return SampleRef(data);
    }
    const PackedSamples packed = ahead ? *ahead : packSamples(samples);
    return adopt(packed.packing, packed.stream, samples.size(), packed.plainCrc, packed.streamCrc);
}

std::function<std::shared_ptr<const void>(const QByteArray&)> SampleStore::packer() const
{
    return [ahead = m_ahead](const QByteArray& samples) -> std::shared_ptr<const void> {
        return ahead->add(samples);
    };
}

QByteArray SampleStore::stream(const SampleData* data) const
{
    return data->toData(true);
}

std::function<QByteArray()> SampleStore::reader(const SampleData* data) const
{
    return [stream = data->toData(true), packing = data->packing, size = data->plainSize,
            crc = data->plainCrc] {
        const QByteArray result =
            packing == SamplePacking::Deflated ? inflated(stream, size) : stream;
        return result.size() == size && checksumOf(result) == crc ? result : QByteArray();
    };
}

void SampleStore::unpack(unsigned char type, void* filterData, const QByteArray& source,
                         QByteArray& target)
{
    if (type == DeflatedItem) {
        target = inflated(source, static_cast<SampleData*>(filterData)->plainSize);
    }
}

void SampleStore::gone(SampleData* data)
{
    m_byItem.remove(data->item);
}

SampleData::SampleData(SampleStore* store, StreamCache* streams)
    : StreamCacheData(streams), m_store(store)
{
}

SampleData::~SampleData()
{
    m_store->gone(this);
}

void SampleData::disposeData()
{
    delete this;
}

}  // namespace Family
