#pragma once

#include <QDialog>

class QLineEdit;
class QTreeView;

namespace App {

class ActionList;
class ActionRegistry;

/// The keys of all actions, which can be searched, and saved to be printed.
class KeysDialog : public QDialog
{
    Q_OBJECT

public:
    /// The registry is not owned and must outlive the dialog.
    explicit KeysDialog(const ActionRegistry* registry, QWidget* parent = nullptr);

    /// Ask for a file and write the table of keys to it.
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
