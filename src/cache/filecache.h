#pragma once

#include "cache/streamcache.h"

namespace Zorv {

/// An item of a `FileCache`: a whole file.
struct ZORV_EXPORT FileItem final : StreamCache::Item
{
    QString fileName;
};

/// Its items are files, which it reads and rewrites where they are. It removes none on its own.
///
/// The type of an item follows from the suffix of its file, in any case: 4 PNG, 5 PCX, 7 ACT; of a
/// GIF 6 with `filterData`, and without 8 and a pointer to the item's `fileName` in its place; 0
/// for any other. The filters of the host make usable bytes of the file's, and back.
class ZORV_EXPORT FileCache final : public StreamCache
{
public:
    /// `FileStore`.
    Type type() const override;

    /// What `readFilter()` makes of the file, empty if it makes nothing.
    QByteArray itemData(Item* item) const override;

    /// The bytes of the file; empty if it cannot be read.
    QByteArray itemRawData(Item* item) const override;

    /// Takes a file up. `data` is its name in the local 8-bit encoding, up to a NUL; `type` is not
    /// looked at.
    Item* addItem(const QByteArray& data, unsigned char type, void* filterData,
                  unsigned long long crc) override;

    /// Writes the file anew: beside, checked, renamed, so that a failure leaves the old one. A
    /// `crc` of 0 leaves the item's as it was; `type` and `size` stay.
    void setItemData(Item* item, const QByteArray& data, unsigned char type, void* filterData,
                     unsigned long long crc) override;

    /// Reads the size of the file. False if it is 0 or there is no file.
    bool itemIsValid(Item* item) const;

    /// Renames the file. The item takes the new name even if that fails.
    void renameItem(Item* item, const QString& name);

    /// Removes the file; the item stays on the list.
    void deleteItem(Item* item);

    QString fileName(Item* item) const;

    /// Why the last `setItemData()` left the old file, in words for the person; empty if it wrote.
    QString failure() const { return m_failure; }

private:
    QString m_failure;
};

}  // namespace Zorv
