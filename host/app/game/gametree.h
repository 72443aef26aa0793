#pragma once

#include <QSet>
#include <QTreeView>

namespace Family {
class FamilyParentProject;
}

namespace App {

/// The tree of a game: its folders, projects and files. What the person has
/// opened in it stays open when rows are announced anew.
class GameTree : public QTreeView
{
    Q_OBJECT

public:
    explicit GameTree(QWidget* parent = nullptr);

    /// Null for none. The game must outlive the view, or be taken off.
    void setGame(Family::FamilyParentProject* game);

    /// The path that a row stands for; a folder's ends in "/".
    QString pathOf(const QModelIndex& index) const;

    /// The row of a file or folder; invalid if there is none.
    QModelIndex indexOf(const QString& path) const;

    /// Opens the folder of a file in the tree and makes the file the current row.
    void reveal(const QString& fileName);

signals:
    /// The person wants to see a file: the main one of a project, or another.
    void fileRequested(const QString& fileName);

private:
    void request(const QModelIndex& index);
    void restoreSoon();
    void restore();

    Family::FamilyParentProject* m_game = nullptr;
    QSet<QString> m_expanded;  ///< paths of the open rows
    QString m_current;
    bool m_isChanging = false;  ///< rows are announced anew
};

}  // namespace App
