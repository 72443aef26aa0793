#pragma once

#include "zorv_export.h"

#include <QAbstractListModel>

namespace Zorv {

/// A list whose rows can be dragged to another place in it.
///
/// Drops land between rows, never on one, and move rows at once through
/// `moveTo()`. Main thread only.
class ZORV_EXPORT OrganizableListModel : public QAbstractListModel
{
    Q_OBJECT

public:
    using QAbstractListModel::QAbstractListModel;

    /// Puts the dragged rows in front of `row`, in their order.
    ///
    /// `data` is a payload of `mimeData()`, read as its first format; rows that
    /// this list does not have are left out, and a broken payload moves nothing.
    /// Values of host types are read by their stream operators. Only
    /// `Qt::MoveAction` is taken. A target at or behind the end counts as
    /// the last row, so a row dragged there from above ends next to last. The
    /// result is always false: the rows are in place already, and true would
    /// make the view delete them.
    bool dropMimeData(const QMimeData* data, Qt::DropAction action, int row, int column,
                      const QModelIndex& parent) override;

    /// `Qt::MoveAction`.
    Qt::DropActions supportedDropActions() const override;
    Qt::DropActions supportedDragActions() const override;

    /// A row of this model can be selected and dragged; anything else only
    /// takes drops.
    Qt::ItemFlags flags(const QModelIndex& index) const override;

protected:
    /// Moves one row so that it stands at `to` afterwards.
    virtual void moveTo(unsigned from, unsigned to) = 0;
};

}  // namespace Zorv
