#pragma once

#include "image/canvas/layerref_p.h"
#include "image/canvas/pixeltiles_p.h"

namespace Zorv {

/// The layer of a command, which holds its pixels alone while it is in no list. They can be packed
/// then, and the layer has none until it comes back.
class HeldLayer
{
public:
    explicit HeldLayer(ImageLayer* layer) : m_layer(layer) {}

    void putInto(ImageCanvas* canvas, int row);
    void takeFrom(ImageCanvas* canvas);

    /// See `ImageUndoCommand`.
    qint64 byteSize() const;
    qint64 pack(qint64 limit);

private:
    LayerRef m_layer;
    PixelTiles m_pixels;  ///< those of the layer while they are packed
    bool m_isPacked = false;
};

}  // namespace Zorv
