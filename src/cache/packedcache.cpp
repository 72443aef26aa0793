#include "cache/packedcache.h"

#include "cache/crc64.h"

namespace Zorv {

namespace {

const unsigned char PlainType = 0;

// Empty data is special: qCompress() makes four bytes of it, and qUncompress() warns about an empty
// input.
QByteArray unpacked(const QByteArray& stored)
{
    return stored.isEmpty() ? QByteArray() : qUncompress(stored);
}

unsigned long long knownChecksum(const QByteArray& data, unsigned char type, unsigned long long crc)
{
    if (crc != 0 || type != PlainType) {
        return crc;
    }
    return crc64(reinterpret_cast<const unsigned char*>(data.constData()), unsigned(data.size()));
}

}  // namespace

QByteArray PackedCache::itemData(StreamCache::Item* item) const
{
    if (!item) {
        return {};
    }
    const QByteArray stored = rawData(static_cast<Item*>(item));
    QByteArray result;
    if (item->type == PlainType) {
        result = unpacked(stored);
    } else if (!stored.isEmpty()) {
        emit readFilter(item->type, item->filterData, stored, result);
    }
    return result.isEmpty() ? stored : result;
}

QByteArray PackedCache::itemRawData(StreamCache::Item* item) const
{
    if (!item) {
        return {};
    }
    const QByteArray stored = rawData(static_cast<Item*>(item));
    return item->type == PlainType ? unpacked(stored) : stored;
}

StreamCache::Item* PackedCache::addItem(const QByteArray& data, unsigned char type,
                                        void* filterData, unsigned long long crc)
{
    Item* item =
        add(packed(data, type, filterData), type, filterData, knownChecksum(data, type, crc));
    item->unpackedSize = data.size();
    appendItem(item);
    return item;
}

void PackedCache::setItemData(StreamCache::Item* item, const QByteArray& data, unsigned char type,
                              void* filterData, unsigned long long crc)
{
    auto* own = static_cast<Item*>(item);
    const QByteArray stored = packed(data, type, filterData);
    own->unpackedSize = data.size();
    set(own, stored, type, filterData, knownChecksum(data, type, crc));
    itemChanged(own);
}

QByteArray PackedCache::packed(const QByteArray& data, unsigned char type, void* filterData) const
{
    if (data.isEmpty()) {
        return {};
    }
    QByteArray result;
    if (type == PlainType) {
        result = qCompress(data);
    } else {
        emit writeFilter(type, filterData, data, result);
    }
    return result.isEmpty() ? data : result;
}

}  // namespace Zorv
