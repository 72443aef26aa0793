#pragma once

#include <QDialog>

class QLineEdit;
class QTreeView;

namespace App {

class ActionList;
class ActionRegistry;

/// The shortcuts of all actions: searchable, and can be saved for printing.
class KeysDialog : public QDialog
{
    Q_OBJECT

public:
    /// Does not own the registry, which must outlive the dialog.
    explicit KeysDialog(const ActionRegistry* registry, QWidget* parent = nullptr);

    /// Asks for a file and writes the table of shortcuts to it.
    void savePdf();
    void saveHtml();

private:
    using Writer = bool (*)(const ActionRegistry*, const QString&, QString*);

    void makeView();
    QWidget* makeButtons();
    void save(const QString& filter, const QString& extension, Writer write);

    const ActionRegistry* m_registry;
    ActionList* m_list;
    QLineEdit* m_field;
    QTreeView* m_view;
};

/// Opens the dialog on a window.
void showKeys(const ActionRegistry* registry, QWidget* window);

}  // namespace App
