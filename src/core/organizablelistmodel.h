#pragma once

#include "zorv_export.h"

#include <QAbstractListModel>

namespace Zorv {

/// A list whose rows can be reordered by drag and drop.
///
/// Rows are dropped between rows, never on one. A drop moves them at once
/// through `moveTo()`. Main thread only.
class ZORV_EXPORT OrganizableListModel : public QAbstractListModel
{
    Q_OBJECT

public:
    using QAbstractListModel::QAbstractListModel;

    /// Moves the dragged rows in front of `row` and keeps their order.
    ///
    /// `data` is a payload of `mimeData()`, of which the first format is read.
    /// Rows that do not exist in this list are skipped. A broken payload moves
    /// nothing. Values of host types are read by their stream operators. Only
    /// `Qt::MoveAction` is accepted. A target at or behind the end counts as
    /// the last row, so a row dragged there from above ends up next to last.
    /// Always returns false: the rows have already moved, and true would make
    /// the view delete them.
    bool dropMimeData(const QMimeData* data, Qt::DropAction action, int row, int column,
                      const QModelIndex& parent) override;

    /// `Qt::MoveAction`.
    Qt::DropActions supportedDropActions() const override;
    Qt::DropActions supportedDragActions() const override;

    /// Rows of this model can be selected and dragged. Everything else only
    /// accepts drops.
    Qt::ItemFlags flags(const QModelIndex& index) const override;

protected:
    /// Moves one row. `to` is its index afterwards.
    virtual void moveTo(unsigned from, unsigned to) = 0;
};

}  // namespace Zorv
