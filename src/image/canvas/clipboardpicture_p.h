#pragma once

#include <QImage>
#include <QString>

class QMimeData;

namespace Zorv {

/// Whether the data, which may be null, claims to contain a picture.
bool hasPicture(const QMimeData* data);

/// The picture in the data: `Format_Indexed8` with a table, or `Format_ARGB32`. Null if none can be
/// read, with the reason for the user.
QImage clipboardPicture(const QMimeData* data, QString* reason);

}  // namespace Zorv
