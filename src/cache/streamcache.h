#pragma once

#include "zorv_export.h"

#include <QByteArray>
#include <QList>
#include <QObject>

#include <memory>

namespace Zorv {

class StreamCacheIndex;

/// A store of binary items. Every sprite or sound of a collection keeps its data in one.
///
/// It manages a list of items and does not interpret their bytes. Type 0 is plain compression.
/// Every other type names a filter of the host, which connects to `readFilter()` and
/// `writeFilter()`. The destructor does not delete the items: call `clear()` first, or destroy all
/// handles (`StreamCacheData`) before the cache. Main thread only.
class ZORV_EXPORT StreamCache : public QObject
{
    Q_OBJECT

public:
    /// The kinds of store.
    enum Type {
        DefaultCache = 0,  ///< as the setting "cache_type" says
        MemoryStore = 1,   ///< `MemoryCache`
        DiskStore = 2,     ///< `DiskCache`
        FileStore = 3      ///< `FileCache`
    };

    /// One item. A store sets all fields.
    struct ZORV_EXPORT Item
    {
        virtual ~Item();

        unsigned char type;      ///< 0 for plain compression, otherwise a filter of the host
        void* filterData;        ///< passed to the filters; not owned
        unsigned long long crc;  ///< CRC of the decoded bytes; 0 if not yet known
        int size;                ///< number of stored bytes
    };

    StreamCache();
    ~StreamCache() override;

    /// Creates a store, which the caller owns. `DefaultCache` uses the host's setting "cache_type":
    /// a number below 2 gives a `MemoryCache`, any other a `DiskCache`. Null for an unknown type.
    static StreamCache* instance(Type type);

    virtual Type type() const = 0;

    /// The decoded bytes of an item; empty for null.
    virtual QByteArray itemData(Item* item) const = 0;

    /// The bytes as stored, before any filter of the host. For an item of type 0 these are the
    /// decoded bytes. Empty for null.
    virtual QByteArray itemRawData(Item* item) const = 0;

    /// Appends a new item. `crc` is the checksum of `data`, or 0 to compute it when needed.
    virtual Item* addItem(const QByteArray& data, unsigned char type, void* filterData,
                          unsigned long long crc) = 0;

    /// Replaces the content of an item. Arguments as above.
    virtual void setItemData(Item* item, const QByteArray& data, unsigned char type,
                             void* filterData, unsigned long long crc) = 0;

    /// Removes an item from the list and deletes it. Null is allowed.
    void removeItem(Item* item);

    /// Deletes all items, last one first.
    void clear();

    /// True if two items hold the same decoded bytes. Two empty items are not equal, unless they
    /// have the same type and known checksums.
    bool isEqual(Item* a, Item* b) const;

    /// True if an item holds exactly `data`, whose checksum is `crc`. False if `data` is empty.
    bool isEqual(Item* item, const QByteArray& data, unsigned long long crc) const;

    /// The first item with these bytes, except `exclude`. Null if there is none or if `data` is
    /// empty. The first search computes all missing checksums. The cost of later ones does not grow
    /// with the list.
    Item* find(const QByteArray& data, Item* exclude) const;

    /// The same for data with a known checksum. `raw` is how an item of type `type` would store it:
    /// an item with exactly these stored bytes is found without decoding.
    Item* find(const QByteArray& data, unsigned long long crc, const QByteArray& raw,
               unsigned char type) const;

signals:
    /// Convert stored bytes to usable ones and back. A filter that changes nothing leaves `dstData`
    /// empty. Connect with `Qt::DirectConnection`.
    void readFilter(unsigned char type, void* filterData, const QByteArray& srcData,
                    QByteArray& dstData) const;
    void writeFilter(unsigned char type, void* filterData, const QByteArray& srcData,
                     QByteArray& dstData) const;

protected:
    /// For derived stores: append an item to the list, report that its bytes or checksum have
    /// changed, and get the list in order of adding.
    void appendItem(Item* item);
    void itemChanged(Item* item);
    const QList<Item*>& items() const { return m_items; }

private:
    void updateChecksum(Item* item, QByteArray* data) const;
    bool bringIndexUpToDate() const;

    QList<Item*> m_items;
    std::unique_ptr<StreamCacheIndex> m_index;
};

}  // namespace Zorv
