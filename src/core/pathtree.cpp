#include "core/parentproject_p.h"

#include "code/codedoc/codedocument.h"
#include "core/interface.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>

// How the tree follows disk and projects:
//
// The node of an open project is the folder of its main document. Below it are the files from
// `Project::fileInfos()`. When the main document changes, this list is compared with the previous
// one, and the tree is only touched if they differ. Folders that list are watched and re-read by
// `DirectoryPath::update()`.
//
// Both sources share the nodes, so a node is only removed if neither needs it.
//
// The children of a node change in three steps: the model announces the removal of all shown
// children, they change while they are hidden, and the model announces the insertion of all new
// ones (`ChildrenChange`). This is simpler than announcing each row, and it also covers changes
// further below.

namespace Zorv {

namespace {

const QChar Slash = QLatin1Char('/');

QString withoutLastSlash(const QString& path)
{
    QString result = QDir::cleanPath(QDir(path).absolutePath());
    if (result.endsWith(Slash)) {
        result.chop(1);
    }
    return result;
}

/// The sort order of a folder's listing.
bool isBefore(const BasePath* a, const BasePath* b)
{
    return a->pathName().compare(b->pathName(), Qt::CaseInsensitive) < 0;
}

/// True for a folder that its parent lists, at the position a new listing would give it.
bool isListedFolder(const BasePath* node)
{
    const BasePath* parent = node->parentPath();
    const int row = node->row();
    if (!(parent->listing() & ParentProject::ListFolders) || !node->isDirectory() ||
        node->listing() || parent->isHidden() ||
        (row > 0 && !isBefore(parent->childAt(row - 1), node)) ||
        (row + 1 < parent->childCount() && !isBefore(node, parent->childAt(row + 1)))) {
        return false;
    }
    const QString path = node->absolutePath();
    const QFileInfo info(path.left(path.size() - 1));
    return info.isDir() && !info.isSymLink() && !info.isHidden() && info.isReadable();
}

bool sameFiles(const QList<Project::FileInfo>& a, const QList<Project::FileInfo>& b)
{
    const auto same = [](const Project::FileInfo& x, const Project::FileInfo& y) {
        return x.id == y.id && x.path == y.path;
    };
    return std::equal(a.begin(), a.end(), b.begin(), b.end(), same);
}

}  // namespace

ParentProjectPrivate::ParentProjectPrivate(ParentProject* parentProject, const QString& rootPath,
                                           Archive& rootArchive)
    : DirectoryPath(nullptr, withoutLastSlash(rootPath), ParentProject::ListNothing, {}),
      model(parentProject), archive(&rootArchive), m_watcher(takeWatcher())
{
    if (m_watcher) {
        connect(m_watcher.get(), &QFileSystemWatcher::directoryChanged, this,
                &ParentProjectPrivate::folderChanged);
    }
}

// Watched folders deregister from the watcher, which is destroyed before the base class.
ParentProjectPrivate::~ParentProjectPrivate()
{
    takeChildren().clear();
}

void ParentProjectPrivate::childsRemoved(BasePath* path)
{
    const int shown = path->shownCount();
    if (shown == 0 || !path->isShown()) {
        path->hideChildren();
        return;
    }
    model->beginRemoveRows(indexOf(path), 0, shown - 1);
    path->hideChildren();
    model->endRemoveRows();
}

void ParentProjectPrivate::childsAdded(BasePath* path)
{
    const int shown = path->shownCount();
    if (shown == path->childCount() || !path->isShown()) {
        path->showChildren();
        return;
    }
    model->beginInsertRows(indexOf(path), shown, path->childCount() - 1);
    path->showChildren();
    model->endInsertRows();
}

QFileSystemWatcher* ParentProjectPrivate::watcher()
{
    return m_watcher.get();
}

QModelIndex ParentProjectPrivate::indexOf(BasePath* path) const
{
    return path == this ? QModelIndex() : model->createIndex(path->row(), 0, path);
}

QStringList ParentProjectPrivate::splitPath(const QString& path) const
{
    const QString root = absolutePath();
    const bool inside = path.startsWith(root) || path + Slash == root;
    QStringList parts = path.mid(inside ? root.size() : 0).split(Slash);
    if (parts.first().isEmpty()) {
        parts.removeFirst();
    }
    if (!parts.isEmpty() && parts.last().isEmpty()) {
        parts.removeLast();
    }
    return parts;
}

BasePath* ParentProjectPrivate::findPath(const QString& path)
{
    const QStringList names = splitPath(path);
    BasePath* node = names.isEmpty() ? nullptr : this;
    for (const QString& name : names) {
        node = node->child(name);
        if (!node) {
            break;
        }
    }
    return node;
}

BasePath* ParentProjectPrivate::addPath(BasePath* parentPath, const QString& path,
                                        ParentProject::PathType type, const QStringList& filters)
{
    const QStringList names = splitPath(path);
    if (names.isEmpty()) {
        return nullptr;
    }
    BasePath* node = parentPath;
    for (const QString& name : names) {
        BasePath* child = node->child(name);
        if (!child) {
            auto folder = std::make_unique<DirectoryPath>(node, name, type, filters);
            DirectoryPath* added = folder.get();
            node->insertChild(node->childCount(), std::move(folder));
            if (!node->isHidden()) {
                childsAdded(node);
            }
            added->startListing();
            child = added;
        }
        node = child;
    }
    return node;
}

void ParentProjectPrivate::removePath(const QString& path)
{
    BasePath* node = findPath(path);
    if (!node) {
        return;
    }
    if (node->holdsProject() && node->isDirectory()) {
        static_cast<DirectoryPath*>(node)->stopListing();
    } else if (!node->holdsProject()) {
        removeNode(node);
    }
}

void ParentProjectPrivate::removeNode(BasePath* node)
{
    BasePath* parentPath = node->parentPath();
    if (isListedFolder(node)) {
        // Listing the folder again for each of many projects would take quadratic time.
        const ChildrenChange change(node);
        node->takeChildren().clear();
        return;
    }
    const ChildrenChange change(parentPath);
    parentPath->removeChild(node);
    // The folder lists the project again, now as a closed one.
    if (parentPath->isDirectory()) {
        static_cast<DirectoryPath*>(parentPath)->update();
    }
}

void ParentProjectPrivate::addRef(CodeDocument* main)
{
    Project* project = main->project();
    if (!project) {
        return;
    }
    ++count;
    placeProject(main);
    connect(main, &QTextDocument::contentsChanged, this, &ParentProjectPrivate::mainChanged,
            Qt::UniqueConnection);

    const Interface* host = Interface::instance();
    if (count == 1 && !main->fileName().isEmpty() && host &&
        host->option(QStringLiteral("backup_onload")).toBool()) {
        model->backup(ParentProject::tr("Auto"));
    }
}

// The node of a project is the folder of its main document.
void ParentProjectPrivate::placeProject(CodeDocument* main)
{
    Project* project = main->project();
    const QString fileName = main->fileName();
    BasePath* folder = fileName.isEmpty() ? nullptr
                                          : addPath(this, QFileInfo(fileName).absolutePath(),
                                                    ParentProject::ListNothing, {});
    BasePath* node = folder ? folder : this;
    BasePath* former = projects.value(project).node;
    if (former != node) {
        projects[project] = {node, {}};
        node->addProject(project);
    }
    if (former && former != node) {
        leaveNode(former, project);
    }
    updateProjectFiles(main);
}

void ParentProjectPrivate::leaveNode(BasePath* node, Project* project)
{
    node->removeProject(project);
    if (node == this || node->holdsAnchor()) {
        showFiles(node);
    } else {
        removeNode(node);
    }
}

void ParentProjectPrivate::release(Project* project)
{
    const auto entry = projects.constFind(project);
    if (entry == projects.constEnd()) {
        return;
    }
    leaveNode(entry->node, project);
    auto* main = static_cast<CodeDocument*>(project->file(FileID::MainCode));
    if (main) {
        disconnect(main, &QTextDocument::contentsChanged, this, &ParentProjectPrivate::mainChanged);
    }
    projects.remove(project);
    if (--count == 0) {
        model->lastReferenceGone();
    }
}

void ParentProjectPrivate::updateProjectFiles(CodeDocument* main)
{
    Project* project = main->project();
    const auto entry = projects.find(project);
    if (entry == projects.end()) {
        return;
    }
    QList<Project::FileInfo> files;
    project->fileInfos(files);
    if (!main->fileName().isEmpty()) {
        files.append({FileID::MainCode, QFileInfo(main->fileName()).fileName()});
    }
    std::stable_sort(files.begin(), files.end(), CompareProjectFile());
    if (sameFiles(files, entry->files)) {
        return;
    }
    entry->files = files;
    showFiles(entry->node);
}

void ParentProjectPrivate::listProjects(const BasePath* path, QStringList& list)
{
    if (path->isProject()) {
        if (path->projects().isEmpty()) {
            list.append(path->completePath());
        }
        return;
    }
    for (int i = 0; i < path->childCount(); ++i) {
        listProjects(path->childAt(i), list);
    }
}

void ParentProjectPrivate::moveRoot(const QString& rootPath)
{
    const QStringList watched = m_watcher ? m_watcher->directories() : QStringList();
    if (!watched.isEmpty()) {
        m_watcher->removePaths(watched);
    }
    setPathName(withoutLastSlash(rootPath));
    for (const QPointer<Project>& project : openProjects()) {
        if (auto* main = project->file(FileID::MainCode)) {
            placeProject(static_cast<CodeDocument*>(main));
        }
    }
    listAgain(this);
}

void ParentProjectPrivate::listAgain(BasePath* node)
{
    if (node->listing()) {
        static_cast<DirectoryPath*>(node)->startListing();
    }
    for (int i = 0; i < node->childCount(); ++i) {
        listAgain(node->childAt(i));
    }
}

QVector<QPointer<Project>> ParentProjectPrivate::openProjects() const
{
    QVector<QPointer<Project>> result;
    for (Project* project : projects.keys()) {
        result.append(project);
    }
    return result;
}

void ParentProjectPrivate::beginWork()
{
    failedFiles.clear();
    isCanceled = false;
}

void ParentProjectPrivate::addFailedFiles(const Project& project, const QString& place)
{
    if (project.fileName().isEmpty()) {
        failedFiles.append(project.title());
        return;
    }
    for (const QString& file : project.failedFiles()) {
        failedFiles.append(QDir::cleanPath(place + file));
    }
}

void ParentProjectPrivate::mainChanged()
{
    if (auto* main = qobject_cast<CodeDocument*>(sender())) {
        updateProjectFiles(main);
    }
}

void ParentProjectPrivate::folderChanged(const QString& path)
{
    BasePath* node = findPath(path);
    if (node && node->isDirectory()) {
        static_cast<DirectoryPath*>(node)->update();
    }
}

void ParentProjectPrivate::showFiles(BasePath* node)
{
    const QList<Project::FileInfo> files = filesOf(node);
    FileSet set;
    for (const Project::FileInfo& file : files) {
        if (!set.contains(file.path)) {
            set.insert(file.path, file.id);
        }
    }
    const ChildrenChange change(node);
    QVector<DirectoryPath*> reduced;
    removeIfNotExists(node, {}, set, reduced);
    addFiles(node, files);
    for (DirectoryPath* folder : qAsConst(reduced)) {
        folder->update();
    }
}

// Several projects can share a folder; each shows its files in it.
QList<Project::FileInfo> ParentProjectPrivate::filesOf(BasePath* node) const
{
    QList<Project::FileInfo> files;
    for (Project* project : node->projects()) {
        files += projects.value(project).files;
    }
    if (node->projects().size() > 1) {
        std::stable_sort(files.begin(), files.end(), CompareProjectFile());
    }
    return files;
}

void ParentProjectPrivate::removeIfNotExists(BasePath* node, const QString& prefix,
                                             const FileSet& files, QVector<DirectoryPath*>& reduced)
{
    const int before = node->childCount();
    for (std::unique_ptr<BasePath>& child : node->takeChildren()) {
        if (staysInTree(child.get(), prefix + child->pathName(), files, reduced)) {
            node->insertChild(node->childCount(), std::move(child));
        }
    }
    if (!node->isHidden()) {
        node->showChildren();
    }
    // The removed file may have hidden an entry of the folder with the same name.
    if (node->childCount() < before && node->listing()) {
        reduced.append(static_cast<DirectoryPath*>(node));
    }
}

// Compares the full path of a file with paths relative to the project. They only match for a
// project at the root. In other projects the files are removed here and addFiles() adds them again.
bool ParentProjectPrivate::staysInTree(BasePath* child, const QString& path, const FileSet& files,
                                       QVector<DirectoryPath*>& reduced)
{
    if (!child->projects().isEmpty()) {
        return true;
    }
    const bool isLeaf = child->childCount() == 0;
    if (!isLeaf) {
        removeIfNotExists(child, path + Slash, files, reduced);
    }
    if (child->childCount() > 0 || child->isAnchor()) {
        return true;
    }
    if (child->isDirectory()) {
        return child->isProject() || (isLeaf && files.contains(child->completePath()));
    }
    if (!child->isFile()) {
        return !files.contains(path);
    }
    const auto file = files.constFind(child->completePath());
    return isLeaf && file != files.constEnd() && *file == child->fileID();
}

void ParentProjectPrivate::addFiles(BasePath* node, const QList<Project::FileInfo>& files)
{
    QHash<BasePath*, int> places;
    for (const Project::FileInfo& file : files) {
        const int slash = file.path.lastIndexOf(Slash);
        BasePath* folder =
            slash > 0 ? addPath(node, file.path.left(slash), ParentProject::ListNothing, {})
                      : nullptr;
        BasePath* target = folder ? folder : node;
        const QString name = file.path.mid(slash + 1);
        if (target->child(name)) {
            continue;
        }
        // The names are mostly sorted, so the search continues from the last position.
        int& place = places[target];
        if (place > 0 && name < target->childAt(place - 1)->pathName()) {
            place = 0;
        }
        while (place < target->childCount() && target->childAt(place)->pathName() <= name) {
            ++place;
        }
        target->insertChild(place++, std::make_unique<FilePath>(target, name, file.id));
    }
    for (auto it = places.cbegin(); it != places.cend(); ++it) {
        if (it.key() != node) {
            it.key()->showChildren();
        }
    }
}

}  // namespace Zorv
