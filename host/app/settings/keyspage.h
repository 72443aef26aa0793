#pragma once

#include "app/settings/settingspage.h"

class QKeySequenceEdit;
class QLabel;
class QLineEdit;
class QPushButton;
class QSortFilterProxyModel;
class QTreeView;

namespace App {

class ActionRegistry;
class KeyTable;

/// The settings page of the shortcuts of all actions.
class KeysPage : public SettingsPage
{
    Q_OBJECT

public:
    /// Does not own the registry, which must outlive the page.
    explicit KeysPage(ActionRegistry* registry, QWidget* parent = nullptr);

    QString title() const override;
    void read() override;
    bool write(QString* error) override;
    void restoreDefaults() override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void makeTable();
    QLayout* makeEditor();
    void retranslate();
    int currentRow() const;
    void showKey();

    KeyTable* m_keys;
    QSortFilterProxyModel* m_found;
    QLineEdit* m_filter;
    QTreeView* m_table;
    QLabel* m_label;
    QKeySequenceEdit* m_key;
    QPushButton* m_none;
    QPushButton* m_reset;
};

}  // namespace App
