#include "family/assets/samplestore.h"

#include "family/assets/assetcache.h"
#include "family/assets/samplepacking.h"

#include <zorv/cache/crc64.h>

namespace Family {

using Zorv::StreamCache;

namespace {

// Types of cache items, apart from those of pixels.
enum ItemType : unsigned char { PlainItem = 16, DeflatedItem = 17 };

quint64 checksumOf(const QByteArray& data)
{
    return Zorv::crc64(reinterpret_cast<const uchar*>(data.constData()), unsigned(data.size()));
}

}  // namespace

SampleStore::SampleStore() : m_cache(newAssetCache())
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
    data->fromData(stream, packing == SamplePacking::Plain ? PlainItem : DeflatedItem, data,
                   plainCrc);
    m_byItem.insert(data->item, data);
    return SampleRef(data);
}

SampleRef SampleStore::add(const QByteArray& samples)
{
    if (samples.isEmpty()) {
        return {};
    }
    if (StreamCache::Item* item = m_cache->find(samples, nullptr)) {
        SampleData* data = m_byItem.value(item);
        ++data->refCount;
        return SampleRef(data);
    }
    const quint64 crc = checksumOf(samples);
    const QByteArray packed = deflated(samples);
    if (packed.size() < samples.size() - samples.size() / 8) {
        return adopt(SamplePacking::Deflated, packed, samples.size(), crc, checksumOf(packed));
    }
    return adopt(SamplePacking::Plain, samples, samples.size(), crc, crc);
}

QByteArray SampleStore::stream(const SampleData* data) const
{
    return data->toData(true);
}

QByteArray SampleStore::samples(const SampleData* data) const
{
    const QByteArray result = data->toData(false);
    return result.size() == data->plainSize && checksumOf(result) == data->plainCrc ? result
                                                                                    : QByteArray();
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
