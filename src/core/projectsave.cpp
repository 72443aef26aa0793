#include "core/project.h"

#include "core/files.h"
#include "core/filesystemarchive.h"
#include "core/lazysync_p.h"
#include "core/project_p.h"
#include "core/projectfile.h"

#include <QDir>
#include <QFile>

#include <iterator>
#include <set>
#include <utility>

// `saveAll()` starts with a list of all files that the main document refers to. Some registered
// files are written from memory and taken off the list: for a copy those that are modified or not
// on disk, for a move all except the main document. All others are copied byte by byte.

namespace Zorv {

namespace {

using PendingFile = std::pair<quint32, QString>;

/// The files still to be written or copied, by kind and relative path.
class PendingFiles
{
public:
    void add(FileID id, const QString& path)
    {
        if (!path.isEmpty()) {
            m_files.insert({id, path});
        }
    }

    QStringList paths() const
    {
        QStringList result;
        for (const PendingFile& file : m_files) {
            result.append(file.second);
        }
        return result;
    }

    /// The first path of a kind; empty if there is none.
    QString pathOf(FileID id) const
    {
        const auto it = m_files.lower_bound({id, QString()});
        return it != m_files.end() && it->first == id ? it->second : QString();
    }

    /// Removes all entries that refer to this path, under any kind and spelling.
    void removePath(const QString& path)
    {
        const QString clean = QDir::cleanPath(path);
        for (auto it = m_files.begin(); it != m_files.end();) {
            it = QDir::cleanPath(it->second) == clean ? m_files.erase(it) : std::next(it);
        }
    }

private:
    std::set<PendingFile> m_files;
};

// A reference like "../../x" must not write outside the target folder.
bool isBelow(const QString& fileName, const QString& folder)
{
    QString base = QDir::cleanPath(folder);
    if (!base.endsWith(QLatin1Char('/'))) {
        base += QLatin1Char('/');
    }
    return QDir::cleanPath(fileName).startsWith(base);
}

// Paths that differ only by a doubled slash are equal.
QString cleanName(const QString& fileName)
{
    return fileName.isEmpty() ? fileName : QDir::cleanPath(fileName);
}

PendingFiles referredFiles(Project& project, const QString& root, bool asCopy)
{
    QList<Project::FileInfo> infos;
    project.fileInfos(infos);
    PendingFiles pending;
    for (const Project::FileInfo& info : qAsConst(infos)) {
        pending.add(info.id, info.path);
    }
    if (asCopy) {
        pending.add(FileID::MainCode, cleanName(project.fileName()).mid(root.size()));
    }
    return pending;
}

bool copyOne(Archive& source, const QString& sourceName, const QString& targetName)
{
    QString error;
    return forcePath(targetName) &&
           copyFile(source, sourceName, *FileSystemArchive::instance(), targetName, &error) &&
           error.isEmpty();
}

bool mustWrite(const ProjectFile& file, FileID id, bool asCopy)
{
    return asCopy ? file.isModified() || !QFile::exists(file.fileName()) : id != FileID::MainCode;
}

bool writeOne(ProjectFile& file, const QString& target, bool asCopy)
{
    const LazySync::Exception waits(file.isModified() || !QFile::exists(file.fileName()));
    return forcePath(target) && file.toFile(*FileSystemArchive::instance(), target, asCopy);
}

}  // namespace

void Project::saveAll(const QString& path, bool asCopy, QStringList* files)
{
    const QString root = absolutePath();
    const QString targetRoot = path + basePath();
    PendingFiles pending = referredFiles(*this, root, asCopy);
    if (files) {
        files->append(pending.paths());
    }
    d->failedFiles.clear();
    d->hasWriteFailure = false;

    const QMap<ProjectFile*, FileID> all = d->fileIDs;
    for (auto it = all.cbegin(); it != all.cend(); ++it) {
        ProjectFile* file = it.key();
        const QString name = cleanName(file->fileName());
        if (!asCopy) {
            file->m_archive = FileSystemArchive::instance();
        }
        const bool inside = name.isEmpty() || name.startsWith(root);
        if (!mustWrite(*file, it.value(), asCopy) || file->archive() != m_archive || !inside) {
            continue;
        }
        const QString own = name.mid(root.size());
        const QString relative = own.isEmpty() ? pending.pathOf(it.value()) : own;
        if (relative.isEmpty()) {
            continue;
        }
        const QString target = targetRoot + relative;
        pending.removePath(relative);
        if (!isBelow(target, path) || !writeOne(*file, target, asCopy)) {
            d->failedFiles.append(relative);
            d->hasWriteFailure = true;
        }
    }
    d->copyFiles(pending.paths(), path, targetRoot);
    if (!asCopy) {
        m_archive = FileSystemArchive::instance();
    }
}

void ProjectPrivate::copyFiles(const QStringList& names, const QString& path,
                               const QString& targetRoot)
{
    Archive& source = *project()->archive();
    const bool isOnDisk = &source == FileSystemArchive::instance();
    const QString root = project()->absolutePath();
    for (const QString& relative : names) {
        const QString name = root + relative;
        const QString target = targetRoot + relative;
        const bool stays = QDir::cleanPath(name) == QDir::cleanPath(target);
        if (!stays && (!isBelow(target, path) || !copyOne(source, name, target))) {
            failedFiles.append(relative);
            hasWriteFailure = hasWriteFailure || !isOnDisk || QFile::exists(name);
        }
    }
}

void Project::addFailedFile(const QString& path)
{
    d->failedFiles.append(path);
}

}  // namespace Zorv
