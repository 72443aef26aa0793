#pragma once

#include "cache/streamcache.h"

namespace Zorv {

/// A store that packs what it is given, and leaves the keeping to a derived class.
///
/// Items of type 0 are packed by `qCompress()`, others by `writeFilter()`. No bytes stay no bytes:
/// no filter is asked about them.
class ZORV_EXPORT PackedCache : public StreamCache
{
public:
    struct ZORV_EXPORT Item : StreamCache::Item
    {
        int unpackedSize;  ///< bytes as they were given
    };

    /// See `StreamCache`. What a filter has nothing to change of is stored, and given back, as it
    /// is.
    QByteArray itemData(StreamCache::Item* item) const override;
    QByteArray itemRawData(StreamCache::Item* item) const override;
    StreamCache::Item* addItem(const QByteArray& data, unsigned char type, void* filterData,
                               unsigned long long crc) override;
    void setItemData(StreamCache::Item* item, const QByteArray& data, unsigned char type,
                     void* filterData, unsigned long long crc) override;

protected:
    /// The packed bytes of an item, as `add()` or `set()` got them.
    virtual QByteArray rawData(PackedCache::Item* item) const = 0;

    /// Makes an item of packed bytes, the caller's to append; or gives an item others. Both set all
    /// fields but `unpackedSize`.
    virtual PackedCache::Item* add(const QByteArray& data, unsigned char type, void* filterData,
                                   unsigned long long crc) = 0;
    virtual void set(PackedCache::Item* item, const QByteArray& data, unsigned char type,
                     void* filterData, unsigned long long crc) = 0;

private:
    QByteArray packed(const QByteArray& data, unsigned char type, void* filterData) const;
};

}  // namespace Zorv
