#pragma once

#include "cache/streamcache.h"

#include <QHash>

#include <map>
#include <utility>

namespace Zorv {

/// The items of a cache by their checksums, so that a search need not walk the list.
///
/// It is empty, and follows no change, until it is built: a file that is only opened and shown
/// needs none.
class StreamCacheIndex
{
public:
    using Item = StreamCache::Item;

    /// Takes up the items of the list, unless that is done; all others follow one by one.
    void build(const QList<Item*>& items);

    /// Adds an item at the end of the list; of one that stands in it twice the first place counts.
    void append(Item* item);
    void remove(Item* item);
    void clear();

    /// The bytes or the checksum of an item have changed; one that is not on the list is skipped.
    void update(Item* item);

    /// Computes the checksums that are not known yet. `checksum(item)` gives that of an item.
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

    /// The first item in list order that has that checksum and of which `matches(item)` is true.
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

    /// Where an item stands in the list; -1 if that has to be searched.
    int position(const QList<Item*>& items, Item* item) const;

private:
    struct Entry
    {
        qint64 place = 0;  // grows with the list
        unsigned long long crc = 0;
        bool isKnown = false;
    };

    void take(Item* item);
    void withdraw(const Entry& entry);

    bool m_isBuilt = false;
    QHash<Item*, Entry> m_entries;
    std::map<std::pair<unsigned long long, qint64>, Item*> m_byChecksum;
    std::map<qint64, Item*> m_open;  // those without a checksum
    qint64 m_nextPlace = 0;
};

}  // namespace Zorv
