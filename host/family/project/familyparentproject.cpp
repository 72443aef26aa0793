#include "family/project/familyparentproject.h"

#include "family/familydocument.h"
#include "family/grammar/filekind.h"
#include "family/project/familyenginemodel.h"
#include "family/project/filereference.h"
#include "family/project/gameprogram.h"

#include <zorv/core/dialogs/dialogs.h>
#include <zorv/core/filesystemarchive.h>

#include <QDir>
#include <QDirIterator>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSet>
#include <QStandardPaths>
#include <QUuid>
#include <algorithm>
#include <memory>

namespace Family {

namespace {

constexpr int deepestFolder = 12;

/// Each folder inside these folders is a project.
const QLatin1String projectFolders[] = {QLatin1String("characters"), QLatin1String("stages")};

bool hasMainFile(const QString& folder)
{
    return QDirIterator(folder, mainFileFilters(), QDir::Files | QDir::NoSymLinks).hasNext();
}

/// True if projects are in the expected places: directly in the folder or one per subfolder.
bool holdsProjects(const QString& folder)
{
    if (hasMainFile(folder)) {
        return true;
    }
    QDirIterator folders(folder, QDir::Dirs | QDir::NoDotAndDotDot | QDir::NoSymLinks);
    while (folders.hasNext()) {
        if (hasMainFile(folders.next())) {
            return true;
        }
    }
    return false;
}

/// `below` is the subfolder that leads to the requested path; empty if the folder itself was
/// requested.
bool isGameFolder(const QDir& folder, const QString& below)
{
    return std::any_of(
        std::begin(projectFolders), std::end(projectFolders), [&](QLatin1String name) {
            return below == name || (folder.exists(name) && holdsProjects(folder.filePath(name)));
        });
}

/// Folders beside an engine that hold the copy of a project while it runs.
bool isRunFolder(const QString& name)
{
    static const QRegularExpression pattern(QStringLiteral("^zorvs_[0-9]+-"));
    return name.contains(pattern);
}

void collectMainFiles(const QString& folder, int depth, QStringList* files)
{
    const QDir dir(folder);
    const QStringList names =
        dir.entryList(mainFileFilters(), QDir::Files | QDir::NoSymLinks, QDir::Name);
    for (const QString& name : names) {
        files->append(dir.absoluteFilePath(name));
    }
    const QStringList folders =
        dir.entryList(QDir::Dirs | QDir::NoDotAndDotDot | QDir::NoSymLinks, QDir::Name);
    for (const QString& name : folders) {
        if (FamilyParentProject::isProjectFolder(name, depth)) {
            collectMainFiles(dir.absoluteFilePath(name), depth + 1, files);
        }
    }
}

/// The absolute paths of a main file and of all files that it and its code files name; empty if the
/// main file cannot be read.
QStringList filesOfProject(const QString& gameFolder, const QString& mainFile)
{
    QStringList files{mainFile};
    QStringList toRead{mainFile};
    while (!toRead.isEmpty()) {
        const bool isMain = files.size() == 1;
        const std::unique_ptr<FamilyDocument> document(
            FamilyDocument::open(toRead.takeFirst(), nullptr));
        if (!document && isMain) {
            return {};
        }
        const QVector<FileReference> references =
            document ? fileReferences(document.get()) : QVector<FileReference>();
        for (const FileReference& reference : references) {
            const QString file = QDir::cleanPath(QFileInfo(mainFile).absolutePath() +
                                                 QLatin1Char('/') + reference.path);
            if (files.contains(file) ||
                pathFault(gameFolder, mainFile, reference.path) != PathFault::Fine) {
                continue;
            }
            files += filesBehind(reference.type, file);
            if (isMain && isCodeFile(reference.type)) {
                toRead.append(file);
            }
        }
    }
    return files;
}

}  // namespace

FamilyParentProject::FamilyParentProject(const QString& rootPath)
    : ParentProject(QDir(rootPath).absolutePath(), *Zorv::FileSystemArchive::instance())
{
    const QDir root(rootPath);
    for (const QLatin1String name : projectFolders) {
        if (root.exists(name)) {
            addPath(absolutePath() + name, ListFolders | ListFiles, mainFileFilters());
        }
    }
    const QStringList files = mainFiles(rootPath);
    for (const QString& file : files) {
        addLooseFolder(QFileInfo(file).absolutePath());
    }
}

/// Adds a folder with main files outside of the expected places.
void FamilyParentProject::addLooseFolder(const QString& folder)
{
    const QString below = folder.mid(absolutePath().size());
    for (const QLatin1String name : projectFolders) {
        const bool isExpected =
            below.startsWith(name + QLatin1Char('/')) && below.count(QLatin1Char('/')) == 1;
        if (isExpected || below == name) {
            return;
        }
    }
    if (!below.isEmpty()) {
        addPath(folder, ListFiles, mainFileFilters());
    }
}

QStringList FamilyParentProject::mainFiles(const QString& folder)
{
    QStringList files;
    collectMainFiles(QDir(folder).absolutePath(), 0, &files);
    return files;
}

bool FamilyParentProject::isProjectFolder(const QString& name, int depth)
{
    const bool isBackup = depth == 0 && name == QLatin1String("backup");
    return depth < deepestFolder && !isBackup && !isRunFolder(name);
}

QString FamilyParentProject::folderOf(const QString& path)
{
    const QFileInfo given(path);
    QDir folder(given.isDir() ? given.absoluteFilePath() : given.absolutePath());
    const QString innermost = folder.absolutePath();
    QString below;
    while (!isGameFolder(folder, below)) {
        below = folder.dirName();
        if (!folder.cdUp()) {
            return innermost;
        }
    }
    return folder.absolutePath();
}

Zorv::EngineModel* FamilyParentProject::engineModel() const
{
    return FamilyEngineModel::instance();
}

void FamilyParentProject::projectFiles(const QString& path, QStringList& files)
{
    const QDir root(absolutePath());
    const QFileInfo given(root.absoluteFilePath(path));
    QStringList mains{given.absoluteFilePath()};
    if (given.isDir()) {
        const QDir folder(given.absoluteFilePath());
        mains = folder.entryList(mainFileFilters(), QDir::Files, QDir::Name);
        for (QString& name : mains) {
            name = folder.absoluteFilePath(name);
        }
    }
    for (const QString& main : qAsConst(mains)) {
        const QStringList named = filesOfProject(absolutePath(), main);
        for (const QString& name : named) {
            const QString relative = root.relativeFilePath(name);
            if (!files.contains(relative)) {
                files.append(relative);
            }
        }
    }
}

QString FamilyParentProject::runParameters(int kind) const
{
    return FileKind(kind) == FileKind::Stage ? QStringLiteral("--stage %0")
                                             : QStringLiteral("--character %0");
}

/// A new unique folder, so that nothing of the engine is touched.
QString FamilyParentProject::runPath(int, const QString& name, bool* wholeFolder) const
{
    *wholeFolder = true;
    return name + QLatin1Char('-') + QUuid::createUuid().toString(QUuid::WithoutBraces) +
           QLatin1Char('/');
}

QString FamilyParentProject::runFolder(const QString& executable) const
{
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation) +
                           QStringLiteral("/zorv/runs");
    const bool isOwn = FamilyEngineModel::isPlayer(executable) && QDir().mkpath(folder);
    return isOwn ? folder : ParentProject::runFolder(executable);
}

QStringList FamilyParentProject::runArguments(const QString& executable,
                                              const QStringList& arguments,
                                              const QVector<RunCopy>& copies) const
{
    const bool isPlain = copies.size() == 1 && arguments == QStringList(copies.first().copy);
    if (!FamilyEngineModel::isPlayer(executable) || !isPlain) {
        return arguments;
    }
    const RunCopy& copy = copies.first();
    const bool isStage = FileKind(copy.kind) == FileKind::Stage;
    QStringList all{QDir(absolutePath()).absolutePath(),
                    isStage ? QStringLiteral("--stage") : QStringLiteral("--character"), copy.copy};
    if (!copy.original.isEmpty()) {
        all += {QStringLiteral("--original"), copy.original};
    }
    if (!m_playerSocket.isEmpty()) {
        all += {QStringLiteral("--editor"), m_playerSocket};
    }
    return all;
}

/// Emits changes for rows whose values differ.
template <class Value>
void FamilyParentProject::tellRows(const QHash<QString, Value>& before,
                                   const QHash<QString, Value>& after)
{
    QSet<QString> paths;
    for (const auto* each : {&before, &after}) {
        for (auto it = each->cbegin(); it != each->cend(); ++it) {
            if (!(before.value(it.key()) == after.value(it.key()))) {
                paths.insert(it.key());
            }
        }
    }
    for (const QString& path : qAsConst(paths)) {
        const QModelIndex index = indexOf(path);
        if (index.isValid()) {
            emit dataChanged(index, index);
        }
    }
}

void FamilyParentProject::setProblems(const QHash<QString, Problems>& problems)
{
    QHash<QString, ProblemTally> counts;
    const QString root = QDir::cleanPath(absolutePath());
    for (auto it = problems.cbegin(); it != problems.cend(); ++it) {
        for (QString path = it.key(); path.size() > root.size(); path = QFileInfo(path).path()) {
            counts[path].add(it.value());
        }
    }
    counts.swap(m_problems);
    tellRows(counts, m_problems);
}

void FamilyParentProject::setFileMarks(const QHash<QString, QString>& marks)
{
    const QHash<QString, QString> before = std::exchange(m_marks, marks);
    tellRows(before, marks);
}

QVariant FamilyParentProject::data(const QModelIndex& index, int role) const
{
    const QVariant value = ParentProject::data(index, role);
    const Path* item = role == Qt::DisplayRole || role == Qt::ToolTipRole ||
                               role == Qt::AccessibleDescriptionRole || role == ErrorRole ||
                               role == WarningRole
                           ? itemPath(index)
                           : nullptr;
    if (!item) {
        return value;
    }
    // For the main file of a closed project `absolutePath()` is the path of its folder.
    const bool isMainFile = item->isProject() && !item->isDirectory();
    const QString path =
        QDir::cleanPath(item->absolutePath() + (isMainFile ? item->pathName() : QString()));
    const ProblemTally count = m_problems.value(path);
    switch (role) {
    case Qt::DisplayRole:
        return m_marks.contains(path) ? value.toString() + m_marks.value(path) : value;
    case ErrorRole:
        return count.errors;
    case WarningRole:
        return count.warnings;
    case Qt::AccessibleDescriptionRole:
        return count.isEmpty() ? value : QVariant(count.inWords());
    default:
        return count.isEmpty() ? value
                               : QVariant(value.toString() + QLatin1Char('\n') + count.inWords());
    }
}

void FamilyParentProject::lastReferenceGone()
{
    emit unused();
}

bool FamilyParentProject::mayStart(const QString& executable)
{
    const GameProgram agreed = FamilyEngineModel::instance()->gameProgram();
    const bool isOwn = QFileInfo(executable) == QFileInfo(absolutePath() + GameProgram::name());
    if (!agreed.isThere() || !isOwn || GameProgram(absolutePath()) == agreed) {
        return true;
    }
    Zorv::Dialogs::instance()->error(
        tr("Engine"), tr("'%1' has just been changed, so it was not started. Start it again if you "
                         "know what has changed it.")
                          .arg(QDir::toNativeSeparators(executable)));
    return false;
}

}  // namespace Family
