#include "cache/streamcachedata.h"

#include "cache/filecache.h"

namespace Zorv {

namespace {

const unsigned char FileType = 255;  // ignored: a FileCache derives the type from the name

}  // namespace

StreamCacheData::StreamCacheData(StreamCache* store) : cache(store) {}

StreamCacheData::StreamCacheData(StreamCache* store, const QString& fileName)
    : cache(store), item(store->addItem(fileName.toLocal8Bit(), FileType, nullptr, 0))
{
}

StreamCacheData::~StreamCacheData()
{
    reset();
}

void StreamCacheData::fromData(const QByteArray& data, unsigned char type, void* filterData,
                               unsigned long long crc)
{
    if (item) {
        cache->setItemData(item, data, type, filterData, crc);
    } else {
        item = cache->addItem(data, type, filterData, crc);
    }
}

QByteArray StreamCacheData::toData(bool raw) const
{
    return raw ? cache->itemRawData(item) : cache->itemData(item);
}

bool StreamCacheData::isEqualToData(const QByteArray& data, unsigned long long crc) const
{
    return cache->isEqual(item, data, crc);
}

void StreamCacheData::reset()
{
    if (item) {
        cache->removeItem(item);
        item = nullptr;
    }
}

int StreamCacheData::release()
{
    const int left = --refCount;
    if (left == 0) {
        disposeData();
    }
    return left;
}

QString StreamCacheData::fileName() const
{
    if (!item || cache->type() != StreamCache::FileStore) {
        return {};
    }
    return static_cast<FileCache*>(cache)->fileName(item);
}

}  // namespace Zorv
