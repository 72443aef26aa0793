#include "cache/streamcacheindex_p.h"

#include <algorithm>

// Each item in the index has a place, a number that grows along the list. Items with a known
// checksum are in `m_byChecksum`, sorted by checksum and then by place, so that a search finds the
// first item of the list first. Items without one wait in `m_open` until `complete()`. The index of
// an item in the list is found by a binary search for its place.

namespace Zorv {

void StreamCacheIndex::build(const QList<Item*>& items)
{
    if (!m_isBuilt) {
        m_isBuilt = true;
        m_entries.reserve(items.size());
        for (Item* item : items) {
            take(item);
        }
    }
}

void StreamCacheIndex::append(Item* item)
{
    if (m_isBuilt) {
        take(item);
    }
}

void StreamCacheIndex::take(Item* item)
{
    if (!m_entries.contains(item)) {
        m_entries.insert(item, Entry{m_nextPlace++, 0, false});
        update(item);
    }
}

void StreamCacheIndex::remove(Item* item)
{
    const auto entry = m_entries.find(item);
    if (entry != m_entries.end()) {
        withdraw(*entry);
        m_entries.erase(entry);
    }
}

void StreamCacheIndex::clear()
{
    m_entries.clear();
    m_byChecksum.clear();
    m_open.clear();
    m_isBuilt = false;
}

void StreamCacheIndex::update(Item* item)
{
    const auto entry = m_entries.find(item);
    if (entry == m_entries.end()) {
        return;
    }
    withdraw(*entry);
    entry->crc = item->crc;
    entry->isKnown = item->crc != 0;
    if (entry->isKnown) {
        m_byChecksum.emplace(std::make_pair(entry->crc, entry->place), item);
    } else {
        m_open.emplace(entry->place, item);
    }
}

int StreamCacheIndex::position(const QList<Item*>& items, Item* item) const
{
    const auto entry = m_entries.constFind(item);
    if (entry == m_entries.constEnd() || items.size() != m_entries.size()) {
        return -1;
    }
    const auto found = std::lower_bound(
        items.begin(), items.end(), entry->place,
        [this](Item* other, qint64 place) { return m_entries.value(other).place < place; });
    return int(found - items.begin());
}

void StreamCacheIndex::withdraw(const Entry& entry)
{
    if (entry.isKnown) {
        m_byChecksum.erase({entry.crc, entry.place});
    } else {
        m_open.erase(entry.place);
    }
}

}  // namespace Zorv
