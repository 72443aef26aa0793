#pragma once

#include <QByteArray>
#include <QVector>

namespace Zorv {

/// Reads the row numbers from a payload of `QAbstractItemModel::mimeData()`, in
/// its order.
///
/// The payload may come from another program, so it is not trusted. Item values
/// are skipped instead of built: a hostile payload cannot cost more memory or
/// recursion depth than it has bytes. Only values of host types are read, by
/// their own stream operators. The result is empty if the payload is cut short
/// or holds a type whose length cannot be determined.
QVector<int> draggedRows(const QByteArray& payload);

}  // namespace Zorv
