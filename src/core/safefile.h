#pragma once

#include "zorv_export.h"

#include <QIODevice>

#include <memory>

namespace Zorv {

class SafeFilePrivate;

/// A file that is written next to the old one and replaces it in `commit()`.
///
/// For any code that writes to a device: `open()`, write, `commit()`. Every write and the final
/// flush are checked. The first failure is kept: nothing more is written, and `commit()` removes
/// the new file and keeps the old one. Destroying the object without `commit()` also keeps the old
/// file. `FileSystemArchive` uses this class for writing; see there for modes, links and killed
/// processes.
///
/// Appending, and changing parts of a file, start from a copy of the old content. Up to 256 KiB of
/// small writes are buffered in memory. Re-entrant; use each object in one thread.
class ZORV_EXPORT SafeFile : public QIODevice
{
    Q_OBJECT

public:
    enum Option {
        NoOptions = 0,
        KeepsExisting = 1,  ///< fail if the file exists by the time of `commit()`
        IsCopy = 2,         ///< a new file need not reach the disk, because its source still
                            ///< exists. A file that replaces another always does
        OwnerOnly = 4       ///< only the owner may read it, whatever the mode of the old file
    };
    Q_DECLARE_FLAGS(Options, Option)

    /// Does not touch the disk yet. `path` may be a link, which is followed.
    explicit SafeFile(const QString& path, Options options = NoOptions);

    /// Discards everything that was not committed.
    ~SafeFile() override;

    /// Writes a whole file, creating its folder if needed. Returns false on failure, with `error`
    /// in words for the user; the old file is then unchanged.
    static bool save(const QString& path, const QByteArray& content, QString* error,
                     Options options = NoOptions);

    /// Creates the new file. Its folder must exist. `NewOnly` means the same as `KeepsExisting`. On
    /// false, `failure()` gives the reason.
    bool open(OpenMode mode) override;

    /// Ends the writing. The old file is only replaced by `commit()`.
    void close() override;

    /// Ends the writing and forces all data to disk, so that `commit()` only has to rename.
    /// Optional. Use it when several files change together: if the disk is full, this fails before
    /// any of them is replaced. Returns false if any step has failed.
    bool prepare();

    /// Replaces the old file, once the new one has reached the disk. A file that was opened for
    /// changing but not written to stays as it is. Returns false if any step has failed.
    bool commit();

    /// Gives up: the old file stays and `commit()` will return false.
    void fail(const QString& reason);

    /// The first failure, in words for the user: what, where, what to do. Empty if none.
    QString failure() const;

    bool isSequential() const override;
    qint64 size() const override;
    bool seek(qint64 position) override;

protected:
    qint64 readData(char* data, qint64 maxSize) override;
    qint64 writeData(const char* data, qint64 size) override;

private:
    friend class SafeFilePrivate;
    std::unique_ptr<SafeFilePrivate> d;
};

Q_DECLARE_OPERATORS_FOR_FLAGS(SafeFile::Options)

}  // namespace Zorv
