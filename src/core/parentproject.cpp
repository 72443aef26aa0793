#include "core/parentproject.h"

#include "core/archive.h"
#include "core/enginemodel.h"
#include "core/parentproject_p.h"
#include "core/resourceicon_p.h"

#include <QFileInfo>

namespace Zorv {

namespace {

BasePath* nodeOf(const QModelIndex& index)
{
    return static_cast<BasePath*>(index.internalPointer());
}

QString fileIconName(FileID id)
{
    static const struct
    {
        quint32 bits;
        const char* name;
    } table[] = {
        {FileID::MainCode, "code"}, {FileID::Code, "code"},       {FileID::Sprites, "sprite"},
        {FileID::Sounds, "sound"},  {FileID::Animations, "anim"}, {FileID::Commands, "command"},
    };
    for (const auto& row : table) {
        if (id == row.bits) {
            return QLatin1String(row.name);
        }
    }
    return QStringLiteral("file");
}

QIcon libraryIcon(const QString& name)
{
    return resourceIcon(QStringLiteral(":/zorvl_icons/icons/") + name + QStringLiteral(".png"));
}

}  // namespace

ParentProject::ParentProject(const QString& rootPath, Archive& archive)
    : d(std::make_unique<ParentProjectPrivate>(this, rootPath, archive))
{
}

ParentProject::~ParentProject() = default;

QIcon ParentProject::fileIcon(FileID) const
{
    return {};
}

QString ParentProject::runFolder(const QString& executable) const
{
    return QFileInfo(executable).absolutePath();
}

QStringList ParentProject::runArguments(const QString&, const QStringList& arguments,
                                        const QVector<RunCopy>&) const
{
    return arguments;
}

bool ParentProject::mayStart(const QString&)
{
    return true;
}

void ParentProject::addRef(CodeDocument* main)
{
    d->addRef(main);
}

ParentProject::Path* ParentProject::addPath(const QString& path, PathType type,
                                            const QStringList& filters)
{
    return d->addPath(d.get(), path, type, filters);
}

void ParentProject::removePath(const QString& path)
{
    d->removePath(path);
}

ParentProject::Path* ParentProject::itemPath(const QModelIndex& index) const
{
    return index.isValid() ? nodeOf(index) : nullptr;
}

QModelIndex ParentProject::indexOf(const QString& path) const
{
    BasePath* node = d->findPath(path);
    return node ? d->indexOf(node) : QModelIndex();
}

QList<Project*> ParentProject::openedProjects() const
{
    return d->projects.keys();
}

Archive* ParentProject::archive() const
{
    return d->archive;
}

QString ParentProject::absolutePath() const
{
    return d->absolutePath();
}

QString ParentProject::basePath() const
{
    return d->absolutePath();
}

bool ParentProject::isGame() const
{
    const EngineModel* engine = engineModel();
    return engine && QFileInfo(absolutePath() + engine->executableName()).isFile();
}

void ParentProject::listProjects(QStringList& list) const
{
    ParentProjectPrivate::listProjects(d.get(), list);
}

QStringList ParentProject::failedFiles() const
{
    return d->failedFiles;
}

bool ParentProject::wasCanceled() const
{
    return d->isCanceled;
}

QModelIndex ParentProject::index(int row, int column, const QModelIndex& parent) const
{
    if (!hasIndex(row, column, parent)) {
        return {};
    }
    const BasePath* node = parent.isValid() ? nodeOf(parent) : d.get();
    return createIndex(row, column, node->childAt(row));
}

QModelIndex ParentProject::parent(const QModelIndex& index) const
{
    if (!index.isValid()) {
        return {};
    }
    return d->indexOf(nodeOf(index)->parentPath());
}

int ParentProject::rowCount(const QModelIndex& parent) const
{
    if (parent.column() > 0) {
        return 0;
    }
    return parent.isValid() ? nodeOf(parent)->shownCount() : d->shownCount();
}

int ParentProject::columnCount(const QModelIndex&) const
{
    return 1;
}

bool ParentProject::hasChildren(const QModelIndex& parent) const
{
    return rowCount(parent) > 0;
}

QVariant ParentProject::data(const QModelIndex& index, int role) const
{
    if (!index.isValid()) {
        return {};
    }
    const BasePath* node = nodeOf(index);
    if (role == Qt::DisplayRole || role == Qt::ToolTipRole) {
        return node->pathName();
    }
    if (role != Qt::DecorationRole) {
        return {};
    }
    if (!node->isFile()) {
        return libraryIcon(QStringLiteral("folder"));
    }
    const QIcon icon = fileIcon(node->fileID());
    return icon.isNull() ? libraryIcon(fileIconName(node->fileID())) : icon;
}

}  // namespace Zorv
