#pragma once

#include "cache/streamcache.h"

#include <QHash>

#include <map>
#include <utility>

namespace Zorv {

/// An index of a cache's items by checksum, so that searching is not linear.
///
/// It stays empty and ignores all changes until it is built. So a file that is only opened and
/// shown does not pay for it.
class StreamCacheIndex
{
public:
    using Item = StreamCache::Item;

    /// Adds all items of the list, unless that has already been done. Later changes are followed
    /// one by one.
    void build(const QList<Item*>& items);

    /// Adds an item at the end of the list. If an item is in the list twice, its first place
    /// counts.
    void append(Item* item);
    void remove(Item* item);
    void clear();

    /// Call when the bytes or the checksum of an item have changed. Unknown items are ignored.
    void update(Item* item);

    /// Computes all missing checksums. `checksum(item)` returns the checksum of an item.
    template <class Function>
    void complete(Function checksum)
    {
        const std::map<qint64, Item*> open = std::move(m_open);
        m_open.clear();
        for (const auto& [place, item] : open) {
            Entry& entry = m_entries[item];
            entry.crc = item->crc ? item->crc : checksum(item);
            entry.isKnown = true;
            m_byChecksum.emplace(std::make_pair(entry.crc, place), item);
        }
    }

    /// The first item in list order with this checksum for which `matches(item)` is true.
    template <class Function>
    Item* first(unsigned long long crc, Function matches) const
    {
        for (auto it = m_byChecksum.lower_bound({crc, 0});
             it != m_byChecksum.end() && it->first.first == crc; ++it) {
            if (matches(it->second)) {
                return it->second;
            }
        }
        return nullptr;
    }

    /// The index of an item in the list; -1 if it must be searched for.
    int position(const QList<Item*>& items, Item* item) const;

private:
    struct Entry
    {
        qint64 place = 0;  // increases along the list
        unsigned long long crc = 0;
        bool isKnown = false;
    };

    void take(Item* item);
    void withdraw(const Entry& entry);

    bool m_isBuilt = false;
    QHash<Item*, Entry> m_entries;
    std::map<std::pair<unsigned long long, qint64>, Item*> m_byChecksum;
    std::map<qint64, Item*> m_open;  // items without a checksum
    qint64 m_nextPlace = 0;
};

}  // namespace Zorv
