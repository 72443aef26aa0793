#pragma once

#include <QDialog>
#include <QVector>

class QAbstractButton;
class QDialogButtonBox;
class QListWidget;
class QStackedWidget;

namespace App {

class ActionRegistry;
class SettingsPage;

/// The dialog of all settings: table pages, engines, shortcuts. Changes take effect when they are
/// applied.
class SettingsDialog : public QDialog
{
    Q_OBJECT

public:
    /// Does not own the registry, which must outlive the dialog.
    explicit SettingsDialog(ActionRegistry* registry, QWidget* parent = nullptr);

    void accept() override;

signals:
    /// Settings were stored and must be read again.
    void applied();

private:
    void addPage(SettingsPage* page);
    void retranslate();
    bool apply();
    void restoreDefaults();
    void setEdited(bool isEdited);

    QListWidget* m_titles;
    QStackedWidget* m_stack;
    QDialogButtonBox* m_buttons;
    QVector<SettingsPage*> m_pages;
    bool m_isEdited = false;
};

}  // namespace App
