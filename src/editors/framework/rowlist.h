#pragma once

#include "zorv_export.h"

#include <QListView>
#include <QVector>

namespace Zorv {

/// A list to look at and choose from: several rows can be selected, but not edited or dragged. It
/// keeps the current row when the model is reset. Main thread only.
class ZORV_EXPORT RowList : public QListView
{
    Q_OBJECT

public:
    explicit RowList(QWidget* parent = nullptr);

    /// Also clears the current row: the base class does that without a signal.
    void setModel(QAbstractItemModel* model) override;

    /// The selected rows, ascending.
    QVector<int> selectedRows() const;

signals:
    /// The current row has changed; -1 for none.
    void currentRowChanged(int row);

    /// The selection has changed, or the model was reset.
    void selectedRowsChanged();

protected:
    void selectionChanged(const QItemSelection& selected,
                          const QItemSelection& deselected) override;
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;

private:
    void takeRowBack();

    int m_row = -1;
    QMetaObject::Connection m_reset;
};

}  // namespace Zorv
