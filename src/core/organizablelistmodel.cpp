#include "core/organizablelistmodel.h"

#include "core/dragrows_p.h"

#include <QMimeData>

#include <algorithm>
#include <functional>

namespace Zorv {

bool OrganizableListModel::dropMimeData(const QMimeData* data, Qt::DropAction action, int row, int,
                                        const QModelIndex&)
{
    if (!data || action != Qt::MoveAction) {
        return false;
    }
    const int count = rowCount();
    int target = qMin(qMax(row, 0), count - 1);
    QVector<int> waiting = draggedRows(data->data(data->formats().value(0)));
    waiting.erase(std::remove_if(waiting.begin(), waiting.end(),
                                 [count](int r) { return r < 0 || r >= count; }),
                  waiting.end());
    std::sort(waiting.begin(), waiting.end(), std::greater<int>());

    // Moves one row at a time, from top to bottom. Each move shifts the rows in between, so the row
    // numbers that are still waiting are adjusted.
    while (!waiting.isEmpty()) {
        const int from = waiting.takeLast();
        if (from < target && from != target - 1) {
            moveTo(unsigned(from), unsigned(target - 1));
            for (int& other : waiting) {
                other -= other > from && other <= target;
            }
        } else if (from > target) {
            moveTo(unsigned(from), unsigned(target));
            for (int& other : waiting) {
                other += other >= target && other < from;
            }
            ++target;
        }
    }
    return false;
}

Qt::DropActions OrganizableListModel::supportedDropActions() const
{
    return Qt::MoveAction;
}

Qt::DropActions OrganizableListModel::supportedDragActions() const
{
    return OrganizableListModel::supportedDropActions();
}

Qt::ItemFlags OrganizableListModel::flags(const QModelIndex& index) const
{
    if (!index.isValid() || index.model() != this || index.row() >= rowCount()) {
        return Qt::ItemIsDropEnabled;
    }
    return Qt::ItemIsSelectable | Qt::ItemIsDragEnabled | Qt::ItemIsEnabled |
           Qt::ItemNeverHasChildren;
}

}  // namespace Zorv
