#pragma once

#include "cache/packedcache.h"

#include <QTemporaryFile>

#include <memory>

namespace Zorv {

/// The place of an item in the temporary file of a `DiskCache`.
struct ZORV_EXPORT DiskItem final : PackedCache::Item
{
    qint64 offset;    ///< of the first stored byte; -1 while there is none
    QByteArray kept;  ///< the stored bytes themselves, while the disk has no room for them
};

/// Keeps its items in one temporary file, which dies with it.
///
/// The stored bytes lie one behind the other in the order of their first storing. The file is
/// never shortened. An item that changes its size moves all that lies behind it, and no byte of
/// another. What the disk has no room for is kept in memory.
class ZORV_EXPORT DiskCache final : public PackedCache
{
public:
    /// Opens the file. If that fails, everything reads back empty.
    DiskCache();
    ~DiskCache() override;

    /// `DiskStore`.
    Type type() const override;

    /// False if there is no temporary file.
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
    std::unique_ptr<char[]> m_blockBuffer;  // what one step of a move takes
};

}  // namespace Zorv
