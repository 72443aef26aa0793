#pragma once

#include "app/window/part.h"

#include <QSet>
#include <QTreeView>

namespace App {

struct WindowServices;

/// The tree of a game: its folders, projects and files. What the person has
/// opened in it stays open when rows are announced anew.
class GameTree : public QTreeView, public Part
{
    Q_OBJECT

public:
    explicit GameTree(const WindowServices& services);

    /// Null for none. The game must outlive the view, or be taken off.
    void showGame(Family::FamilyParentProject* game) override;

    /// The path that a row stands for; a folder's ends in "/".
    QString pathOf(const QModelIndex& index) const;

    /// The row of a file or folder; invalid if there is none.
    QModelIndex indexOf(const QString& path) const;

    /// Opens the folder of a file in the tree and makes the file the current row.
    void reveal(const QString& fileName);

    QVector<PanelPlace> places() override;

private:
    void request(const QModelIndex& index);
    void restoreSoon();
    void restore();

    const WindowServices& m_services;
    Family::FamilyParentProject* m_game = nullptr;
    QSet<QString> m_expanded;  ///< paths of the open rows
    QString m_current;
    bool m_isChanging = false;  ///< rows are announced anew
};

}  // namespace App
