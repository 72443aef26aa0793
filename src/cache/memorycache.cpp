#include "cache/memorycache.h"

namespace Zorv {

StreamCache::Type MemoryCache::type() const
{
    return MemoryStore;
}

QByteArray MemoryCache::rawData(PackedCache::Item* item) const
{
    return static_cast<Item*>(item)->data;
}

PackedCache::Item* MemoryCache::add(const QByteArray& data, unsigned char type, void* filterData,
                                    unsigned long long crc)
{
    auto* item = new Item;
    set(item, data, type, filterData, crc);
    return item;
}

void MemoryCache::set(PackedCache::Item* item, const QByteArray& data, unsigned char type,
                      void* filterData, unsigned long long crc)
{
    item->type = type;
    item->filterData = filterData;
    item->crc = crc;
    item->size = data.size();
    // append() copies an array that does not own its bytes and shares all others.
    QByteArray& own = static_cast<Item*>(item)->data;
    own.clear();
    own.append(data);
}

}  // namespace Zorv
