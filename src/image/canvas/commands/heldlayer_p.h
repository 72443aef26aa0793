#pragma once

#include "image/canvas/layerref_p.h"

namespace Zorv {

/// The layer of a command that adds it to the list or removes it. While the layer is out of the
/// list, its pixels count as the command's memory and can be packed.
class HeldLayer
{
public:
    /// Whether the layer is in the list when the command is made.
    enum Place { In, Out };

    HeldLayer(ImageLayer* layer, Place place) : m_layer(layer), m_place(place) {}

    void putInto(ImageCanvas* canvas, int row);
    void takeFrom(ImageCanvas* canvas);

    /// See `ImageUndoCommand`.
    qint64 byteSize() const;
    qint64 pack(qint64 limit);

private:
    LayerRef m_layer;
    Place m_place;
};

}  // namespace Zorv
