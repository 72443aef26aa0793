#include "core/safefile.h"

#include "core/filechange_p.h"
#include "core/filereplace_p.h"
#include "core/files.h"
#include "core/lazysync_p.h"
#include "core/unfinished_p.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <optional>
#include <system_error>

// How a file is replaced safely:
//
// 1. `open()` follows links, checks the target and creates a new file in the same folder, under a
//    hidden name and with the mode and owner of the old file. The new file is locked, so that no
//    other program removes it as a leftover.
// 2. Writes go to the new file through a buffer. The first failure is kept and stops all others.
// 3. `prepare()` flushes, syncs the file to disk and closes it. A copy of the handle keeps the lock
//    until the file has its final name.
// 4. `commit()` takes the folder's lock (`FileTurn`), checks that no other program has changed the
//    target, and renames the new file over it. That is atomic: there is always one complete file.
//    Then the folder is synced.
//
// After any failure the new file is removed and the old one stays.

namespace Zorv {

namespace {

const int PendingSize = 256 * 1024;
const int CopyBlock = 1024 * 1024;
const int MaxNameBytes = 200;
const int MaxNames = 1000;

// The common start of the hidden names of all new files for one target. It is shortened so that a
// number and the suffix always fit.
QString nameHead(const QFileInfo& target)
{
    QString name = target.fileName();
    while (QFile::encodeName(name).size() > MaxNameBytes) {
        name.chop(name.at(name.size() - 1).isLowSurrogate() ? 2 : 1);
    }
    return QLatin1Char('.') + name + QLatin1Char('.');
}

}  // namespace

class SafeFilePrivate
{
    Q_DECLARE_TR_FUNCTIONS(Zorv::SafeFile)

public:
    SafeFilePrivate(SafeFile* device, const QString& name, SafeFile::Options wanted)
        : q(device), path(name), options(wanted)
    {
    }

    bool checkTarget(QIODevice::OpenMode mode);
    bool makeFile();
    bool openNew();
    bool isTaken() const;
    bool copyOldContent();
    bool flush();
    bool writeOut(const char* data, qint64 size);
    bool bringToDisk();
    bool replaceTarget();
    bool takePlace(QString* reason);
    void discard();
    void failWriting(const QString& reason);
    void setFailure(const QString& reason, const QString& advice);

    SafeFile* q;
    QString path;    // as given by the caller
    QString target;  // with links followed
    SafeFile::Options options;
    QFile file;          // the new file; open until commit or failure
    QByteArray pending;  // write buffer, for the current position of `file`
    QString failure;
    bool targetExists = false;
    bool isTouched = false;  // differs from the old file, if it started as a copy of it
    bool waits = false;      // must be synced to disk
    std::optional<FileReplace::HandleCopy> lock;  // keeps the lock of the closed file until it is
                                                  // renamed
};

SafeFile::SafeFile(const QString& path, Options options)
    : d(std::make_unique<SafeFilePrivate>(this, path, options))
{
}

SafeFile::~SafeFile()
{
    if (isOpen()) {
        QIODevice::close();
    }
    d->discard();
}

bool SafeFile::save(const QString& path, const QByteArray& content, QString* error, Options options)
{
    forcePath(path);
    SafeFile file(path, options);
    const bool isSaved =
        file.open(WriteOnly) && file.write(content) == content.size() && file.commit();
    if (!isSaved) {
        *error = file.failure();
    }
    return isSaved;
}

bool SafeFile::open(OpenMode mode)
{
    if (mode & (Append | NewOnly)) {
        mode |= WriteOnly;
    }
    d->options.setFlag(KeepsExisting, d->options.testFlag(KeepsExisting) || (mode & NewOnly));
    if (!d->checkTarget(mode) || !d->makeFile()) {
        return false;
    }
    const bool keepsOld = (mode & Append) || ((mode & ReadOnly) && !(mode & Truncate));
    d->isTouched = !keepsOld || !d->targetExists;
    if (keepsOld && d->targetExists && !d->copyOldContent()) {
        d->discard();
        return false;
    }
    return QIODevice::open(mode | Unbuffered);
}

void SafeFile::close()
{
    if (!isOpen()) {
        return;
    }
    d->flush();
    QIODevice::close();
}

bool SafeFile::prepare()
{
    close();
    return d->failure.isEmpty() && (!d->isTouched || d->bringToDisk());
}

bool SafeFile::commit()
{
    const bool done = prepare() && (!d->isTouched || d->replaceTarget());
    d->discard();
    return done;
}

void SafeFile::fail(const QString& reason)
{
    d->setFailure(reason, tr("The old file is unchanged."));
}

QString SafeFile::failure() const
{
    return d->failure;
}

bool SafeFile::isSequential() const
{
    return false;
}

qint64 SafeFile::size() const
{
    return qMax(d->file.size(), d->file.pos() + d->pending.size());
}

bool SafeFile::seek(qint64 position)
{
    if (!isOpen() || position < 0) {
        return false;
    }
    if (position != d->file.pos() + d->pending.size()) {
        if (!d->flush()) {
            return false;
        }
        if (!d->file.seek(position)) {
            d->failWriting(d->file.errorString());
            return false;
        }
    }
    return QIODevice::seek(position);
}

qint64 SafeFile::readData(char* data, qint64 maxSize)
{
    return d->flush() ? d->file.read(data, maxSize) : -1;
}

qint64 SafeFile::writeData(const char* data, qint64 size)
{
    if (!d->failure.isEmpty()) {
        return -1;
    }
    d->isTouched = true;
    if ((openMode() & Append) && d->pending.isEmpty() && !d->file.seek(d->file.size())) {
        d->failWriting(d->file.errorString());
        return -1;
    }
    if (d->pending.size() + size <= PendingSize) {
        d->pending.append(data, int(size));
        return size;
    }
    return d->flush() && d->writeOut(data, size) ? size : -1;
}

bool SafeFilePrivate::checkTarget(QIODevice::OpenMode mode)
{
    const QString advice = tr("Save under another name.");
    QString reason;
    target = FileReplace::resolved(path, &reason);
    if (target.isEmpty()) {
        setFailure(reason.isEmpty() ? tr("There is no name") : reason, advice);
        return false;
    }
    const QFileInfo info(target);
    targetExists = info.exists();
    if (targetExists && !info.isFile()) {
        setFailure(info.isDir() ? tr("It is a folder") : tr("It is not a plain file"), advice);
    } else if (targetExists && !info.isWritable()) {
        setFailure(tr("The file is write-protected"),
                   tr("Allow writing to it, or save under another name."));
    } else if (targetExists && options.testFlag(SafeFile::KeepsExisting)) {
        setFailure(tr("The file exists"), advice);
    } else if (!targetExists && (mode & QIODevice::ExistingOnly)) {
        setFailure(tr("The file does not exist"), advice);
    }
    return failure.isEmpty();
}

bool SafeFilePrivate::makeFile()
{
    const QFileInfo info(target);
    const QString folder = info.absolutePath();
    Unfinished::clearOnce(folder);
    const QString head = folder + QLatin1Char('/') + nameHead(info);
    for (int i = 0; i < MaxNames && !file.isOpen(); ++i) {
        file.setFileName(head + QString::number(i) + QLatin1String(Unfinished::FileSuffix));
        if (!openNew() && file.error() != QFile::NoError && !isTaken()) {
            break;
        }
    }
    if (!file.isOpen()) {
        setFailure(file.errorString(),
                   tr("Check that the folder is there and may be written to, or save in "
                      "another place."));
        file.setFileName({});  // the existing file belongs to somebody else
        return false;
    }
    Unfinished::add(file.fileName());
    if (targetExists) {
        FileReplace::takeOwnerAndMode(file, target);
    }
    if (options.testFlag(SafeFile::OwnerOnly)) {
        file.setPermissions(QFile::ReadOwner | QFile::WriteOwner);
    }
    return true;
}

// Checks the error instead of the disk: the owner of the file may have renamed it by now.
bool SafeFilePrivate::isTaken() const
{
    return file.errorString() == qt_error_string(int(std::errc::file_exists));
}

// A process that was killed while writing may have left a file with this name.
bool SafeFilePrivate::openNew()
{
    const auto mode = QIODevice::ReadWrite | QIODevice::NewOnly | QIODevice::Unbuffered;
    bool isMade = file.open(mode);
    if (!isMade && Unfinished::removeIfLeft(file.fileName())) {
        isMade = file.open(mode);
    }
    if (isMade && !Unfinished::lock(file.handle(), file.fileName())) {
        file.close();
        isMade = false;
    }
    return isMade;
}

bool SafeFilePrivate::copyOldContent()
{
    QFile old(target);
    if (!old.open(QIODevice::ReadOnly | QIODevice::Unbuffered)) {
        failWriting(old.errorString());
        return false;
    }
    QByteArray block(CopyBlock, Qt::Uninitialized);
    qint64 count;
    while ((count = old.read(block.data(), block.size())) > 0) {
        if (!writeOut(block.constData(), count)) {
            return false;
        }
    }
    if (count < 0) {
        failWriting(old.errorString());
    } else {
        file.seek(0);
    }
    return count == 0;
}

bool SafeFilePrivate::flush()
{
    if (pending.isEmpty() || !failure.isEmpty()) {
        return failure.isEmpty();
    }
    const bool done = writeOut(pending.constData(), pending.size());
    pending.clear();
    return done;
}

bool SafeFilePrivate::writeOut(const char* data, qint64 size)
{
    while (size > 0) {
        const qint64 count = file.write(data, size);
        if (count <= 0) {
            failWriting(file.errorString());
            return false;
        }
        data += count;
        size -= count;
    }
    return true;
}

/// The lock stays until the file is renamed, so that nobody removes it as a leftover.
bool SafeFilePrivate::bringToDisk()
{
    if (lock) {
        return true;
    }
    QString reason;
    waits = targetExists || !(options.testFlag(SafeFile::IsCopy) || LazySync::current());
    if (waits && !FileReplace::syncFile(file, &reason)) {
        failWriting(reason);
        return false;
    }
    lock.emplace(file);
    file.close();
    if (file.error() != QFile::NoError) {
        reason = file.errorString();
        discard();
        failWriting(reason);
        return false;
    }
    return true;
}

bool SafeFilePrivate::replaceTarget()
{
    QString reason;
    if (!takePlace(&reason)) {
        discard();
        failWriting(reason);
        return false;
    }
    Unfinished::remove(file.fileName());
    file.setFileName({});
    lock.reset();
    // The new name must reach the disk as well.
    if (waits) {
        FileReplace::syncFolder(QFileInfo(target).absolutePath());
    }
    return true;
}

bool SafeFilePrivate::takePlace(QString* reason)
{
    std::optional<FileTurn> turn;
    // During a `LazySync` nobody else writes to the new place, so no lock is needed.
    if (targetExists || !LazySync::current()) {
        turn.emplace(target);
    }
    if (turn && !turn->take(reason)) {
        setFailure(*reason, tr("Nothing is written. Try again in a moment."));
        return false;
    }
    if (options.testFlag(SafeFile::KeepsExisting) && QFileInfo::exists(target)) {
        setFailure(tr("The file exists"), tr("Save under another name."));
        return false;
    }
    const bool isThere = FileReplace::rename(file.fileName(), target, reason);
    if (isThere && turn) {
        turn->done();
    }
    return isThere;
}

void SafeFilePrivate::discard()
{
    const QString name = file.fileName();
    if (!name.isEmpty()) {
        QFile::remove(name);
        Unfinished::remove(name);
    }
    file.close();
    file.setFileName({});
    lock.reset();
    pending.clear();
}

void SafeFilePrivate::failWriting(const QString& reason)
{
    setFailure(reason, targetExists
                           ? tr("The old file is unchanged. Free some space or choose another "
                                "place, then save again.")
                           : tr("Free some space or choose another place, then save again."));
}

void SafeFilePrivate::setFailure(const QString& reason, const QString& advice)
{
    if (!failure.isEmpty()) {
        return;
    }
    failure = tr("Cannot write %1: %2. %3").arg(QDir::toNativeSeparators(path), reason, advice);
    q->setErrorString(failure);
}

}  // namespace Zorv
