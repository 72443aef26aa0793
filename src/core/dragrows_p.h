#pragma once

#include <QByteArray>
#include <QVector>

namespace Zorv {

/// The rows in a payload of `QAbstractItemModel::mimeData()`, in its order.
///
/// The values of the items are skipped, not built, so that no payload makes the
/// reader take more memory or depth than it has bytes; only values of host types
/// are read, by their own stream operators. A payload that is cut short, or
/// holds a value of a type whose length does not show, gives no rows.
QVector<int> draggedRows(const QByteArray& payload);

}  // namespace Zorv
