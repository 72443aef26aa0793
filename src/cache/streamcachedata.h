#pragma once

#include "cache/streamcache.h"
#include "zorv_export.h"

namespace Zorv {

/// The handle through which a record owns one item of a cache; base of a host's records.
///
/// Records that share an item share the handle, and count themselves in `refCount`. The cache
/// outlives the handle. Main thread only.
class ZORV_EXPORT StreamCacheData
{
public:
    /// Without an item.
    explicit StreamCacheData(StreamCache* cache);

    /// With the item that stands for a file, in a `FileCache`.
    StreamCacheData(StreamCache* cache, const QString& fileName);

    /// Removes the item from the cache.
    virtual ~StreamCacheData();

    /// Stores bytes, in the own item if there is one; arguments as of `StreamCache::addItem()`.
    void fromData(const QByteArray& data, unsigned char type, void* filterData,
                  unsigned long long crc);

    /// The bytes as stored if `raw`, else the decoded ones.
    QByteArray toData(bool raw) const;

    /// True if the item holds these bytes.
    bool isEqualToData(const QByteArray& data, unsigned long long crc) const;

    /// Removes the item from the cache.
    void reset();

    /// One user less; the last one has `disposeData()` called. Returns how many are left.
    int release();

    /// The path of the item's file; empty unless the cache is a `FileCache`.
    QString fileName() const;

    StreamCache* cache;                 ///< not owned
    StreamCache::Item* item = nullptr;  ///< null without data
    int refCount = 1;

protected:
    /// The record destroys itself.
    virtual void disposeData() = 0;

private:
    Q_DISABLE_COPY(StreamCacheData)
};

}  // namespace Zorv
