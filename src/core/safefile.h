#pragma once

#include "zorv_export.h"

#include <QIODevice>

#include <memory>

namespace Zorv {

class SafeFilePrivate;

/// A file that is written beside the old one and takes its place at `commit()`.
///
/// For whatever writes to a device: `open()`, write, `commit()`. Each write and the flush are
/// checked. A failure of any step is kept: from then on nothing is written, and `commit()` removes
/// the new file and leaves the old one. An object that dies without `commit()` leaves the old file
/// too. What `FileSystemArchive` opens for writing is one of these; its promises on modes, links
/// and programs that are killed hold here.
///
/// Appending, and changing in the middle, start from a copy of the old content. Blocks of up to
/// 256 KiB are gathered in memory. Re-entrant; an object may be used in one thread.
class ZORV_EXPORT SafeFile : public QIODevice
{
    Q_OBJECT

public:
    enum Option {
        NoOptions = 0,
        KeepsExisting = 1,  ///< what stands there by the time of `commit()` stays: a failure
        IsCopy = 2,         ///< a new file need not have reached the disk: what it was made of
                            ///< is there still. One that replaces another always has
        OwnerOnly = 4       ///< nobody else may read it, whatever the mode of the old file
    };
    Q_DECLARE_FLAGS(Options, Option)

    /// Touches nothing yet. `path` may be a link, which is followed.
    explicit SafeFile(const QString& path, Options options = NoOptions);

    /// Gives up what was not committed.
    ~SafeFile() override;

    /// Writes a whole file, and makes the folder that it needs. False, with `error` for the person,
    /// if that fails; what was there is there still.
    static bool save(const QString& path, const QByteArray& content, QString* error,
                     Options options = NoOptions);

    /// Makes the new file; its folder has to be there. `NewOnly` means what `KeepsExisting` does.
    /// On false `failure()` tells why.
    bool open(OpenMode mode) override;

    /// Ends the writing; the old file is replaced by `commit()` only.
    void close() override;

    /// Ends the writing and brings all of it to the disk, so that `commit()` has only to rename.
    /// For a change of several files: what can fail for want of room has failed before the first of
    /// them is replaced. False if any step has failed. Calling it is optional.
    bool prepare();

    /// Puts the new file in the place of the old one, once it has reached the disk. A file that was
    /// opened to be changed, and was not, stays as it is. False if any step has failed.
    bool commit();

    /// Gives up: the old file stays, and `commit()` will answer false.
    void fail(const QString& reason);

    /// The first failure, in words for the person: what, where, what to do. Empty without one.
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
