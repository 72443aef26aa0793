#pragma once

#include "cache/streamcache.h"
#include "zorv_export.h"

namespace Zorv {

/// A handle that owns one item of a cache. Hosts derive their records from it.
///
/// Records that share an item share the handle and count their references in `refCount`. The cache
/// must outlive the handle. Main thread only.
class ZORV_EXPORT StreamCacheData
{
public:
    /// Creates a handle without an item.
    explicit StreamCacheData(StreamCache* cache);

    /// Creates a handle with the item of a file in a `FileCache`.
    StreamCacheData(StreamCache* cache, const QString& fileName);

    /// Removes the item from the cache.
    virtual ~StreamCacheData();

    /// Stores bytes in the own item, or in a new one. Arguments as for `StreamCache::addItem()`.
    void fromData(const QByteArray& data, unsigned char type, void* filterData,
                  unsigned long long crc);

    /// The stored bytes if `raw`, otherwise the decoded ones.
    QByteArray toData(bool raw) const;

    /// True if the item holds these bytes.
    bool isEqualToData(const QByteArray& data, unsigned long long crc) const;

    /// Removes the item from the cache.
    void reset();

    /// Removes one reference and returns how many are left. At 0, `disposeData()` is called.
    int release();

    /// The path of the item's file. Empty if the cache is not a `FileCache`.
    QString fileName() const;

    StreamCache* cache;                 ///< not owned
    StreamCache::Item* item = nullptr;  ///< null if there is no data
    int refCount = 1;

protected:
    /// Must delete the object itself.
    virtual void disposeData() = 0;

private:
    Q_DISABLE_COPY(StreamCacheData)
};

}  // namespace Zorv
