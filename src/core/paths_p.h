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

/// The common part of all nodes of the path tree.
///
/// The first `shownCount()` children are what the model shows. While a
/// `ChildrenChange` lasts that is none, and the children may change at will,
/// with all that is below them.
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

    /// Announces that the children of a node go, or that they are there; both
    /// are passed up to the root, which knows the model.
    virtual void childsRemoved(BasePath* path);
    virtual void childsAdded(BasePath* path);
    virtual QFileSystemWatcher* watcher();

    /// What the node lists of its own accord.
    virtual ParentProject::PathType listing() const;

    /// The path from the root, empty for the root.
    QString completePath() const;

    BasePath* parentPath() const { return m_parentPath; }
    void setPathName(const QString& name) { m_name = name; }
    int row() const { return m_row; }

    int childCount() const { return static_cast<int>(m_children.size()); }
    BasePath* childAt(int index) const { return m_children[static_cast<size_t>(index)].get(); }
    BasePath* child(const QString& name) const { return m_byName.value(name); }
    int shownCount() const { return m_shown; }

    /// True if the model shows the node and all above it.
    bool isShown() const;

    /// True while a `ChildrenChange` on this node lasts.
    bool isHidden() const { return m_hidden; }

    /// Names must differ among the children of a node. What changes in the
    /// middle of the list is not shown any more, with all that is behind it.
    void insertChild(int index, std::unique_ptr<BasePath> child);
    std::vector<std::unique_ptr<BasePath>> takeChildren();
    void removeChild(BasePath* child);

    /// Hides all children, or shows them and gives them their rows. The root
    /// does it between the announcements; elsewhere the node must not be shown.
    void hideChildren();
    void showChildren();

    /// The open projects whose folder this is.
    const QVector<Project*>& projects() const { return m_projects; }
    void addProject(Project* project) { m_projects.append(project); }
    void removeProject(Project* project) { m_projects.removeOne(project); }

    /// True for an open project's folder and for one that lists: such a node
    /// does not go with a list of files.
    bool isAnchor() const { return !m_projects.isEmpty() || listing(); }

    /// True if an anchor is at or below the node.
    bool holdsAnchor() const;

    /// True if something of an open project is at or below the node.
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

/// Takes the children of a node out of the model's sight, and shows what they
/// have become at its end. Changes of one node may nest.
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

    /// Watches the folder and takes its entries in, if it lists.
    void startListing();

    /// Ends that, also below, and drops all that belongs to no open project.
    void stopListing();

    /// Brings the children in line with the disk. Nodes of entries that are
    /// still there stay, and so does all that belongs to an open project.
    /// Nothing is announced if nothing changed.
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

/// A file that a listed folder shows; it belongs to no open project.
class DummyPath : public BasePath
{
public:
    using BasePath::BasePath;

    /// That of its folder.
    QString absolutePath() const override;
    bool isProject() const override;
};

}  // namespace Zorv
