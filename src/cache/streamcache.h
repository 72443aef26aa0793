#pragma once

#include "zorv_export.h"

#include <QByteArray>
#include <QList>
#include <QObject>

#include <memory>

namespace Zorv {

class StreamCacheIndex;

/// A store of binary items, behind every record of a collection of sprites or sounds.
///
/// It keeps a list of items and does not care what their bytes mean: type 0 is plain compression,
/// any other names a filter of the host, who connects to `readFilter()` and `writeFilter()`. Items
/// belong to the cache by convention, but its destructor leaves them: call `clear()` first, or let
/// the records (`StreamCacheData`) go before the cache. Main thread only.
class ZORV_EXPORT StreamCache : public QObject
{
    Q_OBJECT

public:
    /// The kinds of store.
    enum Type {
        DefaultCache = 0,  ///< what the setting "cache_type" says
        MemoryStore = 1,   ///< `MemoryCache`
        DiskStore = 2,     ///< `DiskCache`
        FileStore = 3      ///< `FileCache`
    };

    /// One item. A store sets all fields when it fills the item.
    struct ZORV_EXPORT Item
    {
        virtual ~Item();

        unsigned char type;      ///< 0 for plain compression, else a filter of the host
        void* filterData;        ///< handed to the filters; not owned
        unsigned long long crc;  ///< of the decoded bytes; 0 if it is not known yet
        int size;                ///< bytes as stored
    };

    StreamCache();
    ~StreamCache() override;

    /// A new store, the caller's. `DefaultCache` asks the host for "cache_type": a number below 2
    /// gives a `MemoryCache`, any other a `DiskCache`. Null for an unknown type.
    static StreamCache* instance(Type type);

    virtual Type type() const = 0;

    /// The decoded bytes of an item; empty for null.
    virtual QByteArray itemData(Item* item) const = 0;

    /// The bytes as the store keeps them, before any filter of the host; those of a plain item are
    /// its decoded bytes. Empty for null.
    virtual QByteArray itemRawData(Item* item) const = 0;

    /// Stores a new item at the end of the list. `crc` is that of `data`, or 0 to have it
    /// computed when it is needed.
    virtual Item* addItem(const QByteArray& data, unsigned char type, void* filterData,
                          unsigned long long crc) = 0;

    /// Replaces what an item holds. Arguments as above.
    virtual void setItemData(Item* item, const QByteArray& data, unsigned char type,
                             void* filterData, unsigned long long crc) = 0;

    /// Takes an item off the list, wherever it stands in it, and deletes it. Null is allowed.
    void removeItem(Item* item);

    /// Deletes all items, the last one first.
    void clear();

    /// True if two items hold the same decoded bytes; false for two that hold none, unless they are
    /// of one type and their checksums are known.
    bool isEqual(Item* a, Item* b) const;

    /// True if an item holds the bytes `data` with that checksum; false for no bytes.
    bool isEqual(Item* item, const QByteArray& data, unsigned long long crc) const;

    /// The first item of the list that holds these bytes, other than `exclude`; null if there
    /// is none, and for no bytes. The first search brings all checksums up to date, the cost of
    /// later ones does not grow with the list.
    Item* find(const QByteArray& data, Item* exclude) const;

    /// The same for bytes whose checksum is known, and which an item of a type would keep as `raw`:
    /// one that keeps just that is found without decoding it.
    Item* find(const QByteArray& data, unsigned long long crc, const QByteArray& raw,
               unsigned char type) const;

signals:
    /// Turns stored bytes into usable ones, and back. A filter that leaves `dstData` empty has
    /// nothing to change. Connect with `Qt::DirectConnection`.
    void readFilter(unsigned char type, void* filterData, const QByteArray& srcData,
                    QByteArray& dstData) const;
    void writeFilter(unsigned char type, void* filterData, const QByteArray& srcData,
                     QByteArray& dstData) const;

protected:
    /// For stores: puts an item at the end of the list, tells that its bytes or checksum have
    /// changed, and gives the list in the order of adding.
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
