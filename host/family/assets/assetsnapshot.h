#pragma once

#include <QByteArray>
#include <QStringList>
#include <QVector>

#include <functional>
#include <memory>
#include <vector>

class QIODevice;

namespace Family {

/// The content of a collection at one moment, for another thread to write as a file.
///
/// Copies the tables at once. Packed bytes may have to be read from temporary files; that is done
/// bit by bit in the main thread, which owns the caches. Later changes to the collection do not
/// affect the snapshot. If the collection is reloaded or destroyed first, the snapshot is
/// cancelled.
class AssetSnapshot
{
public:
    using BytesOf = std::function<QByteArray(int stream)>;
    using Write = std::function<bool(QIODevice* device, const BytesOf& bytesOf)>;

    /// `bytesOf` is called once per stream, in order, and then released with everything it holds.
    /// `write` is called from any thread.
    AssetSnapshot(int streams, BytesOf bytesOf, Write write);

    /// Collects bytes for at most so many milliseconds; negative: until complete. Main thread only.
    void gather(int milliseconds);

    /// True if everything is collected and `write()` may be called.
    bool isWhole() const { return m_bytes.size() == m_count; }

    /// True if it will never be complete.
    bool isCanceled() const { return m_isCanceled; }

    /// Writes the whole file. False if bytes were lost or the device reports an error. Any thread.
    bool write(QIODevice* device) const;

    /// For a loose folder: the image file of each sprite, empty if it has none. Otherwise empty.
    QStringList images;

private:
    friend class AssetSnapshots;

    int m_count;
    BytesOf m_bytesOf;
    Write m_write;
    QVector<QByteArray> m_bytes;
    bool m_isCanceled = false;
};

/// The snapshots that a collection has handed out.
class AssetSnapshots
{
public:
    std::shared_ptr<AssetSnapshot> add(int streams, AssetSnapshot::BytesOf bytesOf,
                                       AssetSnapshot::Write write);

    /// Call before the store of their bytes is destroyed: cancels all incomplete ones.
    void cancel();

private:
    std::vector<std::weak_ptr<AssetSnapshot>> m_all;
};

}  // namespace Family
