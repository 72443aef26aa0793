#pragma once

#include "cache/spritenumber.h"
#include "zorv_export.h"

#include <QString>
#include <QVector>

class QMimeData;

namespace Zorv {

/// Drag and drop of sprites between widgets, for example from the thumbnails to the strip.
///
/// Only sprite numbers are dragged, so the sprites may be gone when they are dropped.

/// The MIME type, for `mimeTypes()` of a model.
ZORV_EXPORT QString spriteDragType();

/// The MIME data for these sprites, in their order. The caller owns it.
ZORV_EXPORT QMimeData* spriteDrag(const QVector<SpriteNumber>& sprites);

/// The dragged sprites, in their order. Empty for null, for data of another type, and for malformed
/// data.
ZORV_EXPORT QVector<SpriteNumber> draggedSprites(const QMimeData* data);

}  // namespace Zorv
