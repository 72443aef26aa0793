#pragma once

#include "core/parentproject.h"

#include <QHash>
#include <QString>
#include <QStringList>
#include <QVector>

#include <memory>
#include <vector>

class QFileSystemWatcher;

namespace Zorv {

/// The base of all nodes of the path tree.
///
/// The model shows the first `shownCount()` children. During a `ChildrenChange`
/// that is none, so the children and everything below them can change freely.
class BasePath : public ParentProject::Path
{
public:
    BasePath(BasePath* parentPath, const QString& name);
    ~BasePath() override;

    QString absolutePath() const override;
    QString pathName() const override;
    bool isDirectory() const override;
    bool isProject() const override;
    bool isFile() const override;
    FileID fileID() const override;

    /// Announce that the children of a node are about to disappear, or have
    /// appeared. Both calls are passed up to the root, which knows the model.
    virtual void childsRemoved(BasePath* path);
    virtual void childsAdded(BasePath* path);
    virtual QFileSystemWatcher* watcher();

    /// What the node reads from disk and lists.
    virtual ParentProject::PathType listing() const;

    /// The path relative to the root; empty for the root.
    QString completePath() const;

    BasePath* parentPath() const { return m_parentPath; }
    void setPathName(const QString& name) { m_name = name; }
    int row() const { return m_row; }

    int childCount() const { return static_cast<int>(m_children.size()); }
    BasePath* childAt(int index) const { return m_children[static_cast<size_t>(index)].get(); }
    BasePath* child(const QString& name) const { return m_byName.value(name); }
    int shownCount() const { return m_shown; }

    /// True if the model shows this node and all its ancestors.
    bool isShown() const;

    /// True during a `ChildrenChange` on this node.
    bool isHidden() const { return m_hidden; }

    /// Names must be unique among the children of a node. Inserting hides all
    /// children from `index` on, until `showChildren()`.
    void insertChild(int index, std::unique_ptr<BasePath> child);
    std::vector<std::unique_ptr<BasePath>> takeChildren();
    void removeChild(BasePath* child);

    /// Hides all children, or shows them and updates their rows. The root calls
    /// these between the announcements to the model. Any other caller must make
    /// sure that the node is not shown.
    void hideChildren();
    void showChildren();

    /// The open projects in this folder.
    const QVector<Project*>& projects() const { return m_projects; }
    void addProject(Project* project) { m_projects.append(project); }
    void removeProject(Project* project) { m_projects.removeOne(project); }

    /// True if the node must stay even when no project file needs it: it is the
    /// folder of an open project, or it lists.
    bool isAnchor() const { return !m_projects.isEmpty() || listing(); }

    /// True if this node or one below it is an anchor.
    bool holdsAnchor() const;

    /// True if this node or one below it belongs to an open project.
    bool holdsProject() const;

private:
    BasePath* m_parentPath;
    QString m_name;
    std::vector<std::unique_ptr<BasePath>> m_children;
    QHash<QString, BasePath*> m_byName;
    QVector<Project*> m_projects;
    int m_row = 0;
    int m_shown = 0;
    bool m_hidden = false;
};

/// Hides the children of a node from the model, and shows the new ones when it
/// is destroyed. Changes on the same node can be nested.
class ChildrenChange
{
public:
    explicit ChildrenChange(BasePath* node);
    ~ChildrenChange();
    ChildrenChange(const ChildrenChange&) = delete;
    ChildrenChange& operator=(const ChildrenChange&) = delete;

private:
    BasePath* m_node;
    bool m_outermost;
};

/// A folder.
class DirectoryPath : public BasePath
{
public:
    DirectoryPath(BasePath* parentPath, const QString& name, ParentProject::PathType type,
                  const QStringList& filters);
    ~DirectoryPath() override;

    QString absolutePath() const override;
    bool isDirectory() const override;
    bool isProject() const override;
    ParentProject::PathType listing() const override;

    /// Watches the folder and reads its entries, if it lists.
    void startListing();

    /// Stops listing, here and below, and removes everything that belongs to no
    /// open project.
    void stopListing();

    /// Synchronises the children with the disk. Nodes of entries that still
    /// exist are kept, and so is everything that belongs to an open project.
    /// Nothing is announced if nothing has changed.
    void update();

private:
    struct Entry;
    std::vector<Entry> listEntries() const;
    void addOpenEntries(std::vector<Entry>& entries) const;
    bool isListed(const std::vector<Entry>& entries) const;
    std::unique_ptr<BasePath> makeEntry(const Entry& entry);

    ParentProject::PathType m_type;
    QStringList m_filters;
};

/// A file that an open project refers to.
class FilePath : public BasePath
{
public:
    FilePath(BasePath* parentPath, const QString& name, FileID id);

    bool isFile() const override;
    FileID fileID() const override;

private:
    FileID m_id;
};

/// A file shown by a folder that lists. It belongs to no open project.
class DummyPath : public BasePath
{
public:
    using BasePath::BasePath;

    /// The path of its folder.
    QString absolutePath() const override;
    bool isProject() const override;
};

}  // namespace Zorv
