#include "project/familyparentproject.h"

#include "core/filesystemarchive.h"
#include "familydocument.h"
#include "grammar/filekind.h"
#include "project/familyenginemodel.h"
#include "project/filereference.h"

#include <QDir>
#include <QFileInfo>

namespace Family {

namespace {

constexpr int deepestFolder = 12;

/// Folders whose folders are projects each.
const QLatin1String projectFolders[] = {QLatin1String("characters"), QLatin1String("stages")};

void collectMainFiles(const QString& folder, int depth, QStringList* files)
{
    const QDir dir(folder);
    const QStringList names =
        dir.entryList(mainFileFilters(), QDir::Files | QDir::NoSymLinks, QDir::Name);
    for (const QString& name : names) {
        files->append(dir.absoluteFilePath(name));
    }
    if (depth >= deepestFolder) {
        return;
    }
    const QStringList folders =
        dir.entryList(QDir::Dirs | QDir::NoDotAndDotDot | QDir::NoSymLinks, QDir::Name);
    for (const QString& name : folders) {
        if (depth > 0 || name != QLatin1String("backup")) {
            collectMainFiles(dir.absoluteFilePath(name), depth + 1, files);
        }
    }
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

/// A folder of main files that is not where projects are expected.
void FamilyParentProject::addLooseFolder(const QString& folder)
{
    const QString below = folder.mid(absolutePath().size());
    for (const QLatin1String name : projectFolders) {
        const bool isExpected = below.startsWith(name + QLatin1Char('/'))
                                && below.count(QLatin1Char('/')) == 1;
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
        const std::unique_ptr<FamilyDocument> document(FamilyDocument::open(main, nullptr));
        if (!document) {
            continue;
        }
        files.append(root.relativeFilePath(main));
        const QVector<FileReference> references = fileReferences(document.get());
        for (const FileReference& reference : references) {
            const QString file = QFileInfo(main).absolutePath() + QLatin1Char('/')
                                 + reference.path;
            const QString relative = root.relativeFilePath(QDir::cleanPath(file));
            if (pathFault(absolutePath(), main, reference.path) == PathFault::Fine
                && !files.contains(relative)) {
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

QString FamilyParentProject::runPath(int kind, const QString& name, bool* wholeFolder) const
{
    *wholeFolder = true;
    const QLatin1String folder = projectFolders[FileKind(kind) == FileKind::Stage ? 1 : 0];
    return folder + QLatin1Char('/') + name + QLatin1Char('/');
}

void FamilyParentProject::lastReferenceGone()
{
    emit unused();
}

}  // namespace Family
