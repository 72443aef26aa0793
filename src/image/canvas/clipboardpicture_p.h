#pragma once

#include <QImage>
#include <QString>

class QMimeData;

namespace Zorv {

/// Whether the data, which may be null, claim to have a picture.
bool hasPicture(const QMimeData* data);

/// The picture of a clipboard: `Format_Indexed8` with a table or `Format_ARGB32`. Null if there is
/// none that can be read, with the reason for the person.
QImage clipboardPicture(const QMimeData* data, QString* reason);

}  // namespace Zorv
