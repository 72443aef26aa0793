#pragma once

#include "operations/backups.h"

#include <QDialog>

class QLabel;
class QPushButton;
class QTreeWidget;

namespace App {

/// Lists the backups of a game, and how restoring each one would change its files.
class RestoreDialog : public QDialog
{
    Q_OBJECT

public:
    /// The game must outlive the dialog.
    RestoreDialog(QWidget* parent, const Family::FamilyParentProject& game);

    /// The folder of the selected backup; empty if none is selected.
    QString folder() const;

private:
    void makeLists();
    void fillBackups();
    void showFiles();

    const Family::FamilyParentProject& m_game;
    QVector<Operations::Backup> m_backups;
    QTreeWidget* m_list;
    QTreeWidget* m_files;
    QLabel* m_summary;
    QPushButton* m_restore;
};

}  // namespace App
