#pragma once

#include "zorv_export.h"

#include <QListView>
#include <QVector>

namespace Zorv {

/// A list that is looked at and chosen from: several rows can be selected, nothing is edited or
/// dragged. A model that is read anew keeps the current row. Main thread only.
class ZORV_EXPORT RowList : public QListView
{
    Q_OBJECT

public:
    explicit RowList(QWidget* parent = nullptr);

    /// Lets go of the current row too, which the base class does without a word.
    void setModel(QAbstractItemModel* model) override;

    /// The selected rows in their order.
    QVector<int> selectedRows() const;

signals:
    /// The person is at another row; -1 for none.
    void currentRowChanged(int row);

    /// Other rows are selected, or the rows have been read anew.
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
