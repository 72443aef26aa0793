#include "cache/streamcache.h"

#include "cache/crc64.h"
#include "cache/diskcache.h"
#include "cache/filecache.h"
#include "cache/memorycache.h"
#include "cache/streamcacheindex_p.h"
#include "core/interface.h"

#include <QSet>

#include <cstring>

namespace Zorv {

namespace {

unsigned long long checksumOf(const QByteArray& data)
{
    return crc64(reinterpret_cast<const unsigned char*>(data.constData()), unsigned(data.size()));
}

bool holdsSame(const QByteArray& a, const QByteArray& b)
{
    return a.size() == b.size() && std::memcmp(a.constData(), b.constData(), size_t(a.size())) == 0;
}

}  // namespace

StreamCache::Item::~Item() = default;

StreamCache::StreamCache() : m_index(std::make_unique<StreamCacheIndex>()) {}

StreamCache::~StreamCache() = default;

StreamCache* StreamCache::instance(Type type)
{
    switch (type) {
    case DefaultCache: {
        const Interface* host = Interface::instance();
        const bool inMemory = !host || host->option(QStringLiteral("cache_type")).toInt() < 2;
        return instance(inMemory ? MemoryStore : DiskStore);
    }
    case MemoryStore:
        return new MemoryCache;
    case DiskStore:
        return new DiskCache;
    case FileStore:
        return new FileCache;
    }
    return nullptr;
}

void StreamCache::removeItem(Item* item)
{
    // With the index, removing many items one by one does not search the whole list each time.
    m_index->build(m_items);
    const int position = m_index->position(m_items, item);
    if (position >= 0) {
        m_items.removeAt(position);
    } else {
        m_items.removeAll(item);
    }
    m_index->remove(item);
    delete item;
}

void StreamCache::clear()
{
    m_index->clear();
    // An item may be in the list more than once, but must be deleted only once.
    QSet<Item*> deleted;
    while (!m_items.isEmpty()) {
        Item* last = m_items.takeLast();
        if (!deleted.contains(last)) {
            deleted.insert(last);
            delete last;
        }
    }
}

bool StreamCache::isEqual(Item* a, Item* b) const
{
    if (!a || !b) {
        return false;
    }
    QByteArray dataA;
    QByteArray dataB;
    const bool wasKnown = a->crc && b->crc;
    updateChecksum(a, &dataA);
    updateChecksum(b, &dataB);
    if (a->crc != b->crc) {
        return false;
    }
    // Nothing has been decoded yet: compare the stored bytes and save that work.
    if (wasKnown && a->type == b->type) {
        return holdsSame(itemRawData(a), itemRawData(b));
    }
    if (dataA.isEmpty()) {
        dataA = itemData(a);
    }
    if (dataB.isEmpty()) {
        dataB = itemData(b);
    }
    return !dataA.isEmpty() && holdsSame(dataA, dataB);
}

bool StreamCache::isEqual(Item* item, const QByteArray& data, unsigned long long crc) const
{
    if (!item) {
        return false;
    }
    QByteArray own;
    updateChecksum(item, &own);
    if (item->crc != crc) {
        return false;
    }
    if (own.isEmpty()) {
        own = itemData(item);
    }
    return !own.isEmpty() && holdsSame(own, data);
}

StreamCache::Item* StreamCache::find(const QByteArray& data, Item* exclude) const
{
    if (data.isEmpty() || !bringIndexUpToDate()) {
        return nullptr;
    }
    return m_index->first(checksumOf(data), [&](Item* item) {
        return item != exclude && holdsSame(itemData(item), data);
    });
}

StreamCache::Item* StreamCache::find(const QByteArray& data, unsigned long long crc,
                                     const QByteArray& raw, unsigned char type) const
{
    if (data.isEmpty() || !bringIndexUpToDate()) {
        return nullptr;
    }
    return m_index->first(crc, [&](Item* item) {
        return (item->type == type && holdsSame(itemRawData(item), raw)) ||
               holdsSame(itemData(item), data);
    });
}

/// Returns false if the list is empty.
bool StreamCache::bringIndexUpToDate() const
{
    if (m_items.isEmpty()) {
        return false;
    }
    m_index->build(m_items);
    m_index->complete([this](Item* item) {
        item->crc = checksumOf(itemData(item));
        return item->crc;
    });
    return true;
}

void StreamCache::appendItem(Item* item)
{
    m_items.append(item);
    m_index->append(item);
}

void StreamCache::itemChanged(Item* item)
{
    m_index->update(item);
}

void StreamCache::updateChecksum(Item* item, QByteArray* data) const
{
    if (item->crc == 0) {
        *data = itemData(item);
        item->crc = checksumOf(*data);
        m_index->update(item);
    }
}

}  // namespace Zorv
