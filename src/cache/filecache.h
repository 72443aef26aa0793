#pragma once

#include "cache/streamcache.h"

namespace Zorv {

/// An item of a `FileCache`: one whole file.
struct ZORV_EXPORT FileItem final : StreamCache::Item
{
    QString fileName;
};

/// A store whose items are files, which are read and rewritten in place. It never removes a file by
/// itself.
///
/// The type of an item is derived from the suffix of its file, ignoring case: 4 PNG, 5 PCX, 7 ACT,
/// 0 unknown. A GIF has type 6 if it has `filterData`. Otherwise it has type 8, and its
/// `filterData` is set to a pointer to the item's `fileName`. The host's filters convert between
/// the bytes of the file and usable data.
class ZORV_EXPORT FileCache final : public StreamCache
{
public:
    /// Returns `FileStore`.
    Type type() const override;

    /// The file's bytes after `readFilter()`; empty if the filter returns nothing.
    QByteArray itemData(Item* item) const override;

    /// The file's bytes; empty if it cannot be read.
    QByteArray itemRawData(Item* item) const override;

    /// Adds a file. `data` is its name in the local 8-bit encoding, up to a NUL. `type` is ignored.
    Item* addItem(const QByteArray& data, unsigned char type, void* filterData,
                  unsigned long long crc) override;

    /// Writes the file through `SafeFile`, so that a failure leaves the old file intact. A `crc` of
    /// 0 keeps the item's checksum; `type` and `size` do not change.
    void setItemData(Item* item, const QByteArray& data, unsigned char type, void* filterData,
                     unsigned long long crc) override;

    /// Reads the size of the file. Returns false if it is 0 or the file does not exist.
    bool itemIsValid(Item* item) const;

    /// Renames the file. The item gets the new name even if that fails.
    void renameItem(Item* item, const QString& name);

    /// Removes the file. The item stays in the list.
    void deleteItem(Item* item);

    QString fileName(Item* item) const;

    /// Why the last `setItemData()` kept the old file, in words for the user. Empty on success.
    QString failure() const { return m_failure; }

private:
    QString m_failure;
};

}  // namespace Zorv
