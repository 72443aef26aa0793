#include "editors/framework/rowlist.h"

#include <algorithm>

namespace Zorv {

RowList::RowList(QWidget* parent) : QListView(parent)
{
    setSelectionMode(QAbstractItemView::ExtendedSelection);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setDragDropMode(QAbstractItemView::NoDragDrop);
    setContextMenuPolicy(Qt::ActionsContextMenu);
}

void RowList::setModel(QAbstractItemModel* model)
{
    disconnect(m_reset);
    QListView::setModel(model);
    if (model) {
        // Connect after the selection model: on a reset it clears the current row,
        // which takeRowBack() then restores.
        m_reset = connect(model, &QAbstractItemModel::modelReset, this, &RowList::takeRowBack);
    }
    m_row = -1;
    emit currentRowChanged(-1);
    emit selectedRowsChanged();
}

void RowList::takeRowBack()
{
    const int row = std::min(m_row, model()->rowCount() - 1);
    m_row = -1;
    if (row >= 0) {
        setCurrentIndex(model()->index(row, 0));
    } else {
        emit currentRowChanged(-1);
    }
    emit selectedRowsChanged();
}

QVector<int> RowList::selectedRows() const
{
    QVector<int> rows;
    if (selectionModel()) {
        const QModelIndexList indexes = selectionModel()->selectedIndexes();
        for (const QModelIndex& index : indexes) {
            rows.append(index.row());
        }
    }
    std::sort(rows.begin(), rows.end());
    return rows;
}

void RowList::selectionChanged(const QItemSelection& selected, const QItemSelection& deselected)
{
    QListView::selectionChanged(selected, deselected);
    emit selectedRowsChanged();
}

void RowList::currentChanged(const QModelIndex& current, const QModelIndex& previous)
{
    QListView::currentChanged(current, previous);
    m_row = current.row();
    emit currentRowChanged(current.row());
}

}  // namespace Zorv
