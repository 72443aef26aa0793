#pragma once

#include <QByteArray>
#include <QStringList>
#include <QVector>

#include <functional>
#include <memory>
#include <vector>

class QIODevice;

namespace Family {

/// What a collection holds at one moment, to be written as its file by another thread.
///
/// The tables are taken at once. Packed bytes may have to be read from temporary files, which is
/// done bit by bit, and in the main thread, for caches belong to it. Whatever changes in the
/// collection meanwhile does not show; if that is read again or dies, the snapshot is of no use.
class AssetSnapshot
{
public:
    using BytesOf = std::function<QByteArray(int stream)>;
    using Write = std::function<bool(QIODevice* device, const BytesOf& bytesOf)>;

    /// `bytesOf` is called once for each stream, in order, and then let go of, with all that it
    /// holds; `write` is called from any thread.
    AssetSnapshot(int streams, BytesOf bytesOf, Write write);

    /// Brings together what can be had in so many milliseconds; negative for all. Main thread only.
    void gather(int milliseconds);

    /// True when all is there and `write()` may be called.
    bool isWhole() const { return m_bytes.size() == m_count; }

    /// True if it will never be whole.
    bool isCanceled() const { return m_isCanceled; }

    /// Writes the whole file. False if bytes were lost, or the device takes not all. Any thread.
    bool write(QIODevice* device) const;

    /// Of a loose folder: the image of each sprite, empty for one without. Else empty.
    QStringList images;

private:
    friend class AssetSnapshots;

    int m_count;
    BytesOf m_bytesOf;
    Write m_write;
    QVector<QByteArray> m_bytes;
    bool m_isCanceled = false;
};

/// The snapshots that a collection has given out.
class AssetSnapshots
{
public:
    std::shared_ptr<AssetSnapshot> add(int streams, AssetSnapshot::BytesOf bytesOf,
                                       AssetSnapshot::Write write);

    /// Before the store of their bytes goes: what is not whole never will be.
    void cancel();

private:
    std::vector<std::weak_ptr<AssetSnapshot>> m_all;
};

}  // namespace Family
