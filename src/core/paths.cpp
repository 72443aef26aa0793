#include "core/paths_p.h"

#include <QDir>
#include <QFileSystemWatcher>
#include <QSet>

#include <algorithm>

namespace Zorv {

ParentProject::Path::~Path() = default;

BasePath::BasePath(BasePath* parentPath, const QString& name)
    : m_parentPath(parentPath), m_name(name)
{
}

BasePath::~BasePath() = default;

QString BasePath::absolutePath() const
{
    return m_parentPath ? m_parentPath->absolutePath() + m_name : m_name;
}

QString BasePath::pathName() const
{
    return m_name;
}

bool BasePath::isDirectory() const
{
    return false;
}

bool BasePath::isProject() const
{
    return false;
}

bool BasePath::isFile() const
{
    return false;
}

FileID BasePath::fileID() const
{
    return 0;
}

void BasePath::childsRemoved(BasePath* path)
{
    if (m_parentPath) {
        m_parentPath->childsRemoved(path);
    }
}

void BasePath::childsAdded(BasePath* path)
{
    if (m_parentPath) {
        m_parentPath->childsAdded(path);
    }
}

QFileSystemWatcher* BasePath::watcher()
{
    return m_parentPath ? m_parentPath->watcher() : nullptr;
}

ParentProject::PathType BasePath::listing() const
{
    return ParentProject::ListNothing;
}

QString BasePath::completePath() const
{
    if (!m_parentPath) {
        return {};
    }
    const QString path = m_parentPath->completePath() + m_name;
    return isDirectory() ? path + QLatin1Char('/') : path;
}

bool BasePath::isShown() const
{
    return !m_parentPath || (m_row < m_parentPath->m_shown && m_parentPath->isShown());
}

void BasePath::insertChild(int index, std::unique_ptr<BasePath> child)
{
    child->m_row = index;
    m_shown = qMin(m_shown, index);
    m_byName.insert(child->m_name, child.get());
    m_children.insert(m_children.begin() + index, std::move(child));
}

std::vector<std::unique_ptr<BasePath>> BasePath::takeChildren()
{
    m_byName.clear();
    m_shown = 0;
    return std::move(m_children);
}

void BasePath::removeChild(BasePath* child)
{
    m_byName.remove(child->m_name);
    const auto isChild = [child](const auto& other) { return other.get() == child; };
    m_children.erase(std::find_if(m_children.begin(), m_children.end(), isChild));
}

void BasePath::hideChildren()
{
    m_hidden = true;
    m_shown = 0;
}

void BasePath::showChildren()
{
    for (int i = m_shown; i < childCount(); ++i) {
        childAt(i)->m_row = i;
    }
    m_hidden = false;
    m_shown = childCount();
}

bool BasePath::holdsAnchor() const
{
    return isAnchor() || std::any_of(m_children.begin(), m_children.end(),
                                     [](const auto& child) { return child->holdsAnchor(); });
}

bool BasePath::holdsProject() const
{
    return isFile() || !m_projects.isEmpty() ||
           std::any_of(m_children.begin(), m_children.end(),
                       [](const auto& child) { return child->holdsProject(); });
}

ChildrenChange::ChildrenChange(BasePath* node) : m_node(node), m_outermost(!node->isHidden())
{
    if (m_outermost) {
        m_node->childsRemoved(m_node);
    }
}

ChildrenChange::~ChildrenChange()
{
    if (m_outermost) {
        m_node->childsAdded(m_node);
    }
}

/// One entry of a folder's listing: an existing node, or the name of a new one.
struct DirectoryPath::Entry
{
    QString name;
    bool isFolder;
    BasePath* node;
};

DirectoryPath::DirectoryPath(BasePath* parentPath, const QString& name,
                             ParentProject::PathType type, const QStringList& filters)
    : BasePath(parentPath, name), m_type(type), m_filters(filters)
{
}

// The children use this folder to find the watcher, so they must be destroyed first.
DirectoryPath::~DirectoryPath()
{
    takeChildren().clear();
    if (m_type && watcher()) {
        watcher()->removePath(absolutePath());
    }
}

QString DirectoryPath::absolutePath() const
{
    return BasePath::absolutePath() + QLatin1Char('/');
}

bool DirectoryPath::isDirectory() const
{
    return true;
}

bool DirectoryPath::isProject() const
{
    return parentPath() && (parentPath()->listing() & ParentProject::ListFolders);
}

ParentProject::PathType DirectoryPath::listing() const
{
    return m_type;
}

void DirectoryPath::startListing()
{
    if (!m_type) {
        return;
    }
    if (watcher()) {
        watcher()->addPath(absolutePath());
    }
    update();
}

void DirectoryPath::stopListing()
{
    if (m_type && watcher()) {
        watcher()->removePath(absolutePath());
    }
    m_type = ParentProject::ListNothing;
    const ChildrenChange change(this);
    for (std::unique_ptr<BasePath>& child : takeChildren()) {
        if (!child->holdsProject()) {
            continue;
        }
        if (child->isDirectory()) {
            static_cast<DirectoryPath*>(child.get())->stopListing();
        }
        insertChild(childCount(), std::move(child));
    }
}

void DirectoryPath::update()
{
    if (!m_type) {
        return;
    }
    std::vector<Entry> entries = listEntries();
    addOpenEntries(entries);
    if (isListed(entries)) {
        return;
    }
    const ChildrenChange change(this);
    std::vector<std::unique_ptr<BasePath>> old = takeChildren();
    QHash<BasePath*, std::unique_ptr<BasePath>*> owners;
    for (std::unique_ptr<BasePath>& child : old) {
        owners.insert(child.get(), &child);
    }
    for (const Entry& entry : entries) {
        insertChild(childCount(),
                    entry.node ? std::move(*owners.value(entry.node)) : makeEntry(entry));
    }
}

// If an open project already shows a node with this name, the entry on disk is skipped.
std::vector<DirectoryPath::Entry> DirectoryPath::listEntries() const
{
    const QDir dir(absolutePath());
    std::vector<Entry> entries;
    const auto append = [this, &entries](const QStringList& names, bool isFolder) {
        for (const QString& name : names) {
            BasePath* node = child(name);
            const bool fits = node && !node->isFile() && node->isDirectory() == isFolder;
            if (fits || !node || !node->holdsProject()) {
                entries.push_back({name, isFolder, fits ? node : nullptr});
            }
        }
    };
    if (m_type & ParentProject::ListFolders) {
        append(dir.entryList(QDir::Dirs | QDir::NoSymLinks | QDir::Readable | QDir::NoDotAndDotDot),
               true);
    }
    if (m_type & ParentProject::ListFiles) {
        append(dir.entryList(m_filters, QDir::Files | QDir::NoSymLinks | QDir::Readable), false);
    }
    return entries;
}

// Adds what open projects show beyond the listing. Folders go to the end, files in front of the
// first greater name. That is where they would be if their project were opened now.
void DirectoryPath::addOpenEntries(std::vector<Entry>& entries) const
{
    QSet<BasePath*> listed;
    for (const Entry& entry : entries) {
        listed.insert(entry.node);
    }
    std::vector<Entry> files;
    for (int i = 0; i < childCount(); ++i) {
        BasePath* node = childAt(i);
        if (!listed.contains(node) && node->holdsProject()) {
            (node->isFile() ? files : entries).push_back({node->pathName(), true, node});
        }
    }
    const auto byName = [](const Entry& a, const Entry& b) { return a.name < b.name; };
    std::stable_sort(files.begin(), files.end(), byName);
    size_t place = 0;
    for (const Entry& file : files) {
        while (place < entries.size() && entries[place].name <= file.name) {
            ++place;
        }
        entries.insert(entries.begin() + static_cast<std::ptrdiff_t>(place), file);
    }
}

bool DirectoryPath::isListed(const std::vector<Entry>& entries) const
{
    if (static_cast<int>(entries.size()) != childCount()) {
        return false;
    }
    for (int i = 0; i < childCount(); ++i) {
        if (entries[static_cast<size_t>(i)].node != childAt(i)) {
            return false;
        }
    }
    return true;
}

std::unique_ptr<BasePath> DirectoryPath::makeEntry(const Entry& entry)
{
    if (entry.isFolder) {
        return std::make_unique<DirectoryPath>(this, entry.name, ParentProject::ListNothing,
                                               QStringList());
    }
    return std::make_unique<DummyPath>(this, entry.name);
}

FilePath::FilePath(BasePath* parentPath, const QString& name, FileID id)
    : BasePath(parentPath, name), m_id(id)
{
}

bool FilePath::isFile() const
{
    return true;
}

FileID FilePath::fileID() const
{
    return m_id;
}

QString DummyPath::absolutePath() const
{
    return parentPath() ? parentPath()->absolutePath() : QString();
}

bool DummyPath::isProject() const
{
    return parentPath() && (parentPath()->listing() & ParentProject::ListFiles);
}

}  // namespace Zorv
