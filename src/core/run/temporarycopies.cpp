#include "core/run/temporarycopies.h"

#include "core/files.h"
#include "core/folders_p.h"
#include "core/run/runrecord_p.h"

#include <QDir>
#include <QDirIterator>
#include <QFileInfo>
#include <QLockFile>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QUuid>

namespace Zorv {

namespace {

const QLatin1String lockSuffix(".lock");
constexpr qint64 CompareBlock = 128 * 1024;

QString recordFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation) +
           QStringLiteral("/runs/");
}

/// The lock of a record. It can be taken if its process no longer exists.
class RecordLock
{
public:
    explicit RecordLock(const QString& record) : m_lock(record + lockSuffix)
    {
        // An engine may run for any length of time, so the lock never expires.
        m_lock.setStaleLockTime(0);
    }

    bool take() { return m_lock.isLocked() || m_lock.tryLock(0); }

private:
    QLockFile m_lock;
};

/// The paths of all files below a folder, relative to it.
QStringList filesBelow(const QString& folder)
{
    QStringList names;
    QDirIterator walk(folder, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (walk.hasNext()) {
        names.append(walk.next().mid(folder.size()));
    }
    return names;
}

bool isSameFile(const QString& a, const QString& b)
{
    QFile first(a);
    QFile second(b);
    if (!first.open(QIODevice::ReadOnly) || !second.open(QIODevice::ReadOnly) ||
        first.size() != second.size()) {
        return false;
    }
    while (!first.atEnd()) {
        const QByteArray block = first.read(CompareBlock);
        if (block.isEmpty() || block != second.read(CompareBlock)) {
            return false;
        }
    }
    return true;
}

/// Reads a leftover record. Deletes the record if none of its copies exist any more.
bool readLeftover(const QString& fileName, RunRecord* safe)
{
    RunRecord record;
    if (!record.read(fileName)) {
        return false;
    }
    *safe = record.safePart();
    if (safe->wholeFolders.isEmpty() && safe->files.isEmpty()) {
        // If the engine's folder is missing, its disk may only be disconnected: keep the record.
        if (QFileInfo(record.folder).isDir()) {
            safe->removeAll();
            QFile::remove(fileName);
        }
        return false;
    }
    return true;
}

}  // namespace

class TemporaryCopiesPrivate
{
public:
    bool save();
    bool locate(const QString& path, QString* relative) const;
    void takeMissingFolders(const QString& path);
    bool move(const QString& from, const QString& path);

    RunRecord record;
    QString fileName;
    std::unique_ptr<RecordLock> lock;
};

/// Locks the record before it is written. Otherwise another program could take it for a leftover.
bool TemporaryCopiesPrivate::save()
{
    if (!lock) {
        QDir().mkpath(recordFolder());
        fileName = recordFolder() + QUuid::createUuid().toString(QUuid::WithoutBraces) +
                   QStringLiteral(".run");
        lock = std::make_unique<RecordLock>(fileName);
    }
    return lock->take() && record.write(fileName);
}

/// Converts a path at or below the engine's folder to a relative one.
bool TemporaryCopiesPrivate::locate(const QString& path, QString* relative) const
{
    const QString clean = QDir::cleanPath(path) + QLatin1Char('/');
    *relative = clean.mid(record.folder.size());
    relative->chop(1);
    return clean.startsWith(record.folder);
}

/// Records every missing folder of `path`, outermost first.
void TemporaryCopiesPrivate::takeMissingFolders(const QString& path)
{
    for (int end = path.indexOf(QLatin1Char('/')); end >= 0;
         end = path.indexOf(QLatin1Char('/'), end + 1)) {
        const QString folder = path.left(end);
        if (!isThere(record.folder + folder) && !record.madeFolders.contains(folder)) {
            record.madeFolders.append(folder);
        }
    }
}

/// Moves a file to its recorded place. If that fails, something else is there, so the entry is
/// removed from the record.
bool TemporaryCopiesPrivate::move(const QString& from, const QString& path)
{
    const QString place = record.folder + path;
    if (forcePath(place) && QFile::rename(from, place)) {
        return true;
    }
    record.forgetFile(path);
    return false;
}

TemporaryCopies::TemporaryCopies(const QString& folder)
    : d(std::make_unique<TemporaryCopiesPrivate>())
{
    d->record.folder = QDir::cleanPath(QFileInfo(folder).absoluteFilePath());
    if (!d->record.folder.endsWith(QLatin1Char('/'))) {
        d->record.folder += QLatin1Char('/');
    }
}

TemporaryCopies::~TemporaryCopies()
{
    remove();
}

bool TemporaryCopies::addFolder(const QString& path)
{
    QString relative;
    if (!d->locate(path, &relative) || relative.isEmpty() || isThere(d->record.folder + relative)) {
        return false;
    }
    const RunRecord before = d->record;
    d->takeMissingFolders(relative);
    d->record.wholeFolders.append(relative);
    d->save();
    if (QDir().mkpath(d->record.folder + relative)) {
        return true;
    }
    d->record = before;
    d->save();
    return false;
}

QStringList TemporaryCopies::spread(const QString& from, const QString& to)
{
    const QString source = QDir::cleanPath(from) + QLatin1Char('/');
    QString target;
    const bool isInside = d->locate(to, &target);
    const QString prefix = target.isEmpty() ? target : target + QLatin1Char('/');
    QStringList moves;
    QStringList stays;
    const QStringList names = filesBelow(source);
    for (const QString& name : names) {
        const QString place = d->record.folder + prefix + name;
        if (isInside && !isThere(place)) {
            moves.append(name);
        } else if (!isInside || !isSameFile(source + name, place)) {
            stays.append(name);
        }
    }
    for (const QString& name : qAsConst(moves)) {
        d->takeMissingFolders(prefix + name);
        d->record.addFile(prefix + name, source + name);
    }
    d->save();
    for (const QString& name : qAsConst(moves)) {
        if (!d->move(source + name, prefix + name)) {
            stays.append(name);
        }
    }
    if (removeDir(source) && d->locate(source, &target)) {
        d->record.wholeFolders.removeOne(target);
    }
    d->save();
    return stays;
}

QStringList TemporaryCopies::remove()
{
    const QStringList stays = d->record.removeAll();
    if (stays.isEmpty() && d->lock) {
        QFile::remove(d->fileName);
        d->lock.reset();
        d->record = RunRecord{d->record.folder, {}, {}, {}};
    }
    return stays;
}

QList<TemporaryCopies::Leftover> TemporaryCopies::leftovers()
{
    QList<Leftover> list;
    const QDir folder(recordFolder());
    // A lock file may exist without a record if writing the record failed. Taking and releasing the
    // lock deletes it.
    QStringList names = folder.entryList(
        {QStringLiteral("*.run"), QStringLiteral("*.run") + lockSuffix}, QDir::Files);
    names.replaceInStrings(QRegularExpression(lockSuffix + QLatin1Char('$')), QString());
    names.removeDuplicates();
    for (const QString& name : qAsConst(names)) {
        const QString fileName = folder.absoluteFilePath(name);
        RecordLock lock(fileName);
        RunRecord safe;
        if (lock.take() && readLeftover(fileName, &safe)) {
            list.append({fileName, safe.folder, safe.paths()});
        }
    }
    return list;
}

QStringList TemporaryCopies::removeLeftover(const Leftover& leftover)
{
    RecordLock lock(leftover.record);
    RunRecord safe;
    if (!lock.take()) {
        return leftover.paths;
    }
    if (!readLeftover(leftover.record, &safe)) {
        return {};
    }
    const QStringList stays = safe.removeAll();
    if (stays.isEmpty()) {
        QFile::remove(leftover.record);
    }
    return stays;
}

}  // namespace Zorv
