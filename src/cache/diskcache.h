#pragma once

#include "cache/packedcache.h"

#include <QTemporaryFile>

#include <memory>

namespace Zorv {

/// The position of an item in the temporary file of a `DiskCache`.
struct ZORV_EXPORT DiskItem final : PackedCache::Item
{
    qint64 offset;    ///< of the first stored byte; -1 if it is not in the file
    QByteArray kept;  ///< the stored bytes, if the disk has no room for them
};

/// Keeps all items in one temporary file, which is deleted with the cache.
///
/// The stored bytes are contiguous, in the order of their first storing. The file never becomes
/// shorter. If the size of an item changes, everything behind it moves, and nothing is overwritten.
/// Items for which the disk has no room are kept in memory.
class ZORV_EXPORT DiskCache final : public PackedCache
{
public:
    /// Opens the file. If that fails, all items read back as empty.
    DiskCache();
    ~DiskCache() override;

    /// Returns `DiskStore`.
    Type type() const override;

    /// False if the temporary file could not be created.
    bool isOpen() const;

protected:
    QByteArray rawData(PackedCache::Item* item) const override;
    PackedCache::Item* add(const QByteArray& data, unsigned char type, void* filterData,
                           unsigned long long crc) override;
    void set(PackedCache::Item* item, const QByteArray& data, unsigned char type, void* filterData,
             unsigned long long crc) override;

private:
    bool makeRoom(DiskItem* item, const QByteArray& data);
    void moveTail(qint64 begin, qint64 end, qint64 delta);
    bool write(qint64 offset, const char* data, qint64 size);

    mutable QTemporaryFile m_tempFile;
    std::unique_ptr<char[]> m_blockBuffer;  // buffer for one step of a move
};

}  // namespace Zorv
