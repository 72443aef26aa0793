#pragma once

#include "zorv_export.h"

#include <QDialog>
#include <QPointer>

class QAbstractItemModel;
class QPushButton;
class QTableView;

/// The palette remap table: which palette replaces which other. Rows can be added and removed, and
/// cells edited in place. Not modal; lives as long as its parent. Main thread only.
class ZORV_EXPORT RemapDlg : public QDialog
{
    Q_OBJECT

public:
    explicit RemapDlg(QWidget* parent);
    ~RemapDlg() override;

    /// The model; null for none. Not owned, and may die.
    void setModel(QAbstractItemModel* model);

signals:
    /// A button is about to change rows; `updateView()` follows.
    void changing(const QString& title);

    /// A button was pressed, with or without a model.
    void updateView();

protected:
    void changeEvent(QEvent* event) override;

private:
    void edit(const QPushButton* button, void (RemapDlg::*change)());
    void addRow();
    void removeSelected();
    void removeAll();
    void retranslate();

    QPointer<QAbstractItemModel> m_model;
    QTableView* m_table;
    QPushButton* m_add;
    QPushButton* m_delete;
    QPushButton* m_clear;
};
