#pragma once

#include "zorv_export.h"

#include <QDialog>

class QAbstractItemModel;
class QListView;
class QModelIndex;

/// Lets the user choose the engine to run from a list.
class ZORV_EXPORT RunDlg : public QDialog
{
    Q_OBJECT

public:
    /// Selects `row` and scrolls to it. The model is not owned.
    RunDlg(QWidget* parent, QAbstractItemModel* model, unsigned row);
    ~RunDlg() override;

    /// The row of the first selected index; 0 if none is selected.
    unsigned selectedIndex() const;

private slots:
    void on_list_doubleClicked(const QModelIndex& index);

private:
    QListView* m_list;
};
