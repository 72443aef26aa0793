#pragma once

#include "cache/packedcache.h"

namespace Zorv {

/// Keeps its items packed in memory.
///
/// Bytes that need no packing are shared with the array that they came in, or copied if that has
/// only borrowed them.
class ZORV_EXPORT MemoryCache final : public PackedCache
{
public:
    struct ZORV_EXPORT Item final : PackedCache::Item
    {
        QByteArray data;  ///< the stored bytes
    };

    /// `MemoryStore`.
    Type type() const override;

protected:
    QByteArray rawData(PackedCache::Item* item) const override;
    PackedCache::Item* add(const QByteArray& data, unsigned char type, void* filterData,
                           unsigned long long crc) override;
    void set(PackedCache::Item* item, const QByteArray& data, unsigned char type, void* filterData,
             unsigned long long crc) override;
};

}  // namespace Zorv
