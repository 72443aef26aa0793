#pragma once

#include <QDialog>

class QLineEdit;
class QTreeView;

namespace App {

class ActionList;
class ActionRegistry;

/// Finds actions by typing. Return closes the dialog, then runs the selected action.
class ActionSearch : public QDialog
{
    Q_OBJECT

public:
    /// Does not own the registry, which must outlive the dialog.
    explicit ActionSearch(ActionRegistry* registry, QWidget* parent = nullptr);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void makeView();
    void filter(const QString& typed);
    void choose(const QModelIndex& index);
    int firstEnabledRow(int from, int step) const;

    ActionRegistry* m_registry;
    ActionList* m_list;
    QLineEdit* m_field;
    QTreeView* m_view;
};

/// Opens the dialog on a window.
void searchActions(ActionRegistry* registry, QWidget* window);

}  // namespace App
