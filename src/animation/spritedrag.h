#pragma once

#include "cache/spritenumber.h"
#include "zorv_export.h"

#include <QString>
#include <QVector>

class QMimeData;

namespace Zorv {

/// Sprites on their way from one widget to another, from the thumbnails to the strip say.
///
/// What is dragged is their numbers alone: the sprites may be gone when they are dropped.

/// The type of the data, for `mimeTypes()` of a model.
ZORV_EXPORT QString spriteDragType();

/// The data of a drag of these sprites, in their order. The caller owns it.
ZORV_EXPORT QMimeData* spriteDrag(const QVector<SpriteNumber>& sprites);

/// The sprites of a drag, in their order. Empty for null, for other data, and for data of that
/// type that is broken.
ZORV_EXPORT QVector<SpriteNumber> draggedSprites(const QMimeData* data);

}  // namespace Zorv
