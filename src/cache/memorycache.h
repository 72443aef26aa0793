#pragma once

#include "cache/packedcache.h"

namespace Zorv {

/// Keeps compressed items in memory.
///
/// Bytes that need no compression are shared with the given array. They are copied if that array
/// does not own them (`QByteArray::fromRawData()`).
class ZORV_EXPORT MemoryCache final : public PackedCache
{
public:
    struct ZORV_EXPORT Item final : PackedCache::Item
    {
        QByteArray data;  ///< the stored bytes
    };

    /// Returns `MemoryStore`.
    Type type() const override;

protected:
    QByteArray rawData(PackedCache::Item* item) const override;
    PackedCache::Item* add(const QByteArray& data, unsigned char type, void* filterData,
                           unsigned long long crc) override;
    void set(PackedCache::Item* item, const QByteArray& data, unsigned char type, void* filterData,
             unsigned long long crc) override;
};

}  // namespace Zorv
