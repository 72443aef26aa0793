#pragma once

#include "app/window/part.h"

#include <QSet>
#include <QTreeView>

namespace App {

struct WindowServices;

/// The tree of a game: its folders, projects and files. Rows that the user expanded stay expanded
/// when the model replaces its rows.
class GameTree : public QTreeView, public Part
{
    Q_OBJECT

public:
    explicit GameTree(const WindowServices& services);

    /// Null for none. The game must outlive the view or be replaced by null first.
    void showGame(Family::FamilyParentProject* game) override;

    /// The path of a row; a folder's path ends in "/".
    QString pathOf(const QModelIndex& index) const;

    /// The row of a file or folder; invalid if there is none.
    QModelIndex indexOf(const QString& path) const;

    /// Expands the folder of a file and makes the file the current row.
    void reveal(const QString& fileName);

    QVector<PanelPlace> places() override;

private:
    void request(const QModelIndex& index);
    void restoreSoon();
    void restore();

    const WindowServices& m_services;
    Family::FamilyParentProject* m_game = nullptr;
    QSet<QString> m_expanded;  ///< paths of the expanded rows
    QString m_current;
    bool m_isChanging = false;  ///< the model is replacing its rows
};

}  // namespace App
