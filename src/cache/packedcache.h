#pragma once

#include "cache/streamcache.h"

namespace Zorv {

/// A store that compresses its items. Derived classes decide where to keep them.
///
/// Items of type 0 are compressed with `qCompress()`, all others by `writeFilter()`. Empty data
/// stays empty and is not passed to any filter.
class ZORV_EXPORT PackedCache : public StreamCache
{
public:
    struct ZORV_EXPORT Item : StreamCache::Item
    {
        int unpackedSize;  ///< size of the data before compression
    };

    /// See `StreamCache`. If a filter returns nothing, the data is stored and returned unchanged.
    QByteArray itemData(StreamCache::Item* item) const override;
    QByteArray itemRawData(StreamCache::Item* item) const override;
    StreamCache::Item* addItem(const QByteArray& data, unsigned char type, void* filterData,
                               unsigned long long crc) override;
    void setItemData(StreamCache::Item* item, const QByteArray& data, unsigned char type,
                     void* filterData, unsigned long long crc) override;

protected:
    /// The compressed bytes of an item, as passed to `add()` or `set()`.
    virtual QByteArray rawData(PackedCache::Item* item) const = 0;

    /// `add()` creates an item from compressed bytes; the caller adds it to the list. `set()`
    /// replaces the bytes of an item. Both set all fields except `unpackedSize`.
    virtual PackedCache::Item* add(const QByteArray& data, unsigned char type, void* filterData,
                                   unsigned long long crc) = 0;
    virtual void set(PackedCache::Item* item, const QByteArray& data, unsigned char type,
                     void* filterData, unsigned long long crc) = 0;

private:
    QByteArray packed(const QByteArray& data, unsigned char type, void* filterData) const;
};

}  // namespace Zorv
