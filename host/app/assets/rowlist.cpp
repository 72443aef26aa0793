#include "app/assets/rowlist.h"

#include <algorithm>

namespace App {

RowList::RowList(QWidget* parent) : QListView(parent)
{
    setSelectionMode(QAbstractItemView::ExtendedSelection);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setDragDropMode(QAbstractItemView::NoDragDrop);
    setContextMenuPolicy(Qt::ActionsContextMenu);
}

void RowList::setModel(QAbstractItemModel* model)
{
    QListView::setModel(model);
    emit currentRowChanged(-1);
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

void RowList::currentChanged(const QModelIndex& current, const QModelIndex& previous)
{
    QListView::currentChanged(current, previous);
    emit currentRowChanged(current.row());
}

}  // namespace App
