#include "core/safefile_p.h"

#include "core/filechange_p.h"
#include "core/filereplace_p.h"
#include "core/lazysync_p.h"
#include "core/unfinished_p.h"

#include <QDir>
#include <QFileInfo>

#include <optional>
#include <system_error>

namespace Zorv {

namespace {

const int PendingSize = 256 * 1024;
const int CopyBlock = 1024 * 1024;
const int MaxNameBytes = 200;
const int MaxNames = 1000;

// The head of the names of all new files for one target: hidden, and short
// enough for a number and the suffix to fit whatever the length of the name.
QString nameHead(const QFileInfo& target)
{
    QString name = target.fileName();
    while (QFile::encodeName(name).size() > MaxNameBytes) {
        name.chop(name.at(name.size() - 1).isLowSurrogate() ? 2 : 1);
    }
    return QLatin1Char('.') + name + QLatin1Char('.');
}

}  // namespace

SafeFile::SafeFile(const QString& path) : m_path(path) {}

SafeFile::~SafeFile()
{
    if (isOpen()) {
        QIODevice::close();
    }
    discard();
}

bool SafeFile::open(OpenMode mode)
{
    if (mode & (Append | NewOnly)) {
        mode |= WriteOnly;
    }
    if (!checkTarget(mode) || !makeFile()) {
        return false;
    }
    const bool keepsOld = (mode & Append) || ((mode & ReadOnly) && !(mode & Truncate));
    m_isNewOnly = mode & NewOnly;
    m_touched = !keepsOld || !m_targetExists;
    if (keepsOld && m_targetExists && !copyOldContent()) {
        discard();
        return false;
    }
    return QIODevice::open(mode | Unbuffered);
}

void SafeFile::close()
{
    if (!isOpen()) {
        return;
    }
    flush();
    QIODevice::close();
}

bool SafeFile::commit()
{
    close();
    const bool done = m_failure.isEmpty() && (!m_touched || replaceTarget());
    discard();
    return done;
}

void SafeFile::fail(const QString& reason)
{
    setFailure(reason, tr("The old file is unchanged."));
}

qint64 SafeFile::size() const
{
    return qMax(m_file.size(), m_file.pos() + m_pending.size());
}

bool SafeFile::seek(qint64 position)
{
    if (!isOpen() || position < 0) {
        return false;
    }
    if (position != m_file.pos() + m_pending.size()) {
        if (!flush()) {
            return false;
        }
        if (!m_file.seek(position)) {
            failWriting(m_file.errorString());
            return false;
        }
    }
    return QIODevice::seek(position);
}

qint64 SafeFile::readData(char* data, qint64 maxSize)
{
    return flush() ? m_file.read(data, maxSize) : -1;
}

qint64 SafeFile::writeData(const char* data, qint64 size)
{
    if (!m_failure.isEmpty()) {
        return -1;
    }
    m_touched = true;
    if ((openMode() & Append) && m_pending.isEmpty() && !m_file.seek(m_file.size())) {
        failWriting(m_file.errorString());
        return -1;
    }
    if (m_pending.size() + size <= PendingSize) {
        m_pending.append(data, int(size));
        return size;
    }
    return flush() && writeOut(data, size) ? size : -1;
}

bool SafeFile::checkTarget(OpenMode mode)
{
    const QString advice = tr("Save under another name.");
    QString reason;
    m_target = FileReplace::resolved(m_path, &reason);
    if (m_target.isEmpty()) {
        setFailure(reason.isEmpty() ? tr("There is no name") : reason, advice);
        return false;
    }
    const QFileInfo target(m_target);
    m_targetExists = target.exists();
    if (m_targetExists && !target.isFile()) {
        setFailure(target.isDir() ? tr("It is a folder") : tr("It is not a plain file"), advice);
    } else if (m_targetExists && !target.isWritable()) {
        setFailure(tr("The file is write-protected"),
                   tr("Allow writing to it, or save under another name."));
    } else if (m_targetExists && (mode & NewOnly)) {
        setFailure(tr("The file exists"), advice);
    } else if (!m_targetExists && (mode & ExistingOnly)) {
        setFailure(tr("The file does not exist"), advice);
    }
    return m_failure.isEmpty();
}

bool SafeFile::makeFile()
{
    const QFileInfo target(m_target);
    const QString folder = target.absolutePath();
    Unfinished::clearOnce(folder);
    const QString head = folder + QLatin1Char('/') + nameHead(target);
    for (int i = 0; i < MaxNames && !m_file.isOpen(); ++i) {
        m_file.setFileName(head + QString::number(i) + QLatin1String(Unfinished::FileSuffix));
        if (!openNew() && m_file.error() != QFile::NoError && !isTaken()) {
            break;
        }
    }
    if (!m_file.isOpen()) {
        setFailure(m_file.errorString(),
                   tr("Check that the folder is there and may be written to, or save in "
                      "another place."));
        return false;
    }
    Unfinished::add(m_file.fileName());
    if (m_targetExists) {
        FileReplace::takeOwnerAndMode(m_file, m_target);
    }
    return true;
}

// Who made the file may have renamed it by now, so it is not looked for.
bool SafeFile::isTaken() const
{
    return m_file.errorString() == qt_error_string(int(std::errc::file_exists));
}

// A process that was killed while it wrote may have left a file of this name.
bool SafeFile::openNew()
{
    const OpenMode mode = ReadWrite | NewOnly | Unbuffered;
    bool isMade = m_file.open(mode);
    if (!isMade && Unfinished::removeIfLeft(m_file.fileName())) {
        isMade = m_file.open(mode);
    }
    if (isMade && !Unfinished::lock(m_file.handle(), m_file.fileName())) {
        m_file.close();
        isMade = false;
    }
    return isMade;
}

bool SafeFile::copyOldContent()
{
    QFile old(m_target);
    if (!old.open(ReadOnly | Unbuffered)) {
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
        m_file.seek(0);
    }
    return count == 0;
}

bool SafeFile::flush()
{
    if (m_pending.isEmpty() || !m_failure.isEmpty()) {
        return m_failure.isEmpty();
    }
    const bool done = writeOut(m_pending.constData(), m_pending.size());
    m_pending.clear();
    return done;
}

bool SafeFile::writeOut(const char* data, qint64 size)
{
    while (size > 0) {
        const qint64 count = m_file.write(data, size);
        if (count <= 0) {
            failWriting(m_file.errorString());
            return false;
        }
        data += count;
        size -= count;
    }
    return true;
}

bool SafeFile::replaceTarget()
{
    QString reason;
    const bool waits = m_targetExists || !(m_isLazy || LazySync::current());
    bool done = !waits || FileReplace::syncFile(m_file, &reason);
    if (done) {
        // Until it has its name it is locked, and so no leftover.
        const FileReplace::HandleCopy keepsLock(m_file);
        m_file.close();
        done = m_file.error() == QFile::NoError;
        reason = m_file.errorString();
        done = done && takePlace(&reason);
        if (!done) {
            discard();
        }
    }
    if (!done) {
        failWriting(reason);
        return false;
    }
    Unfinished::remove(m_file.fileName());
    m_file.setFileName({});
    if (waits) {
        FileReplace::syncFolder(QFileInfo(m_target).absolutePath());
    }
    return true;
}

bool SafeFile::takePlace(QString* reason)
{
    std::optional<FileTurn> turn;
    // Nobody else writes copies to a new place.
    if (m_targetExists || !LazySync::current()) {
        turn.emplace(m_target);
    }
    if (turn && !turn->take(reason)) {
        setFailure(*reason, tr("Nothing is written. Try again in a moment."));
        return false;
    }
    if (m_isNewOnly && QFileInfo::exists(m_target)) {
        setFailure(tr("The file exists"), tr("Save under another name."));
        return false;
    }
    const bool isThere = FileReplace::rename(m_file.fileName(), m_target, reason);
    if (isThere && turn) {
        turn->done();
    }
    return isThere;
}

void SafeFile::discard()
{
    const QString name = m_file.fileName();
    if (!name.isEmpty()) {
        QFile::remove(name);
        Unfinished::remove(name);
    }
    m_file.close();
    m_file.setFileName({});
    m_pending.clear();
}

void SafeFile::failWriting(const QString& reason)
{
    setFailure(reason, m_targetExists
                           ? tr("The old file is unchanged. Free some space or choose another "
                                "place, then save again.")
                           : tr("Free some space or choose another place, then save again."));
}

void SafeFile::setFailure(const QString& reason, const QString& advice)
{
    if (!m_failure.isEmpty()) {
        return;
    }
    m_failure = tr("Cannot write %1: %2. %3").arg(QDir::toNativeSeparators(m_path), reason, advice);
    setErrorString(m_failure);
}

}  // namespace Zorv
