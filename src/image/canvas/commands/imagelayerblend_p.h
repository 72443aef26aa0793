#pragma once

#include "image/canvas/imageundocommand.h"
#include "image/canvas/layerref_p.h"

namespace Zorv {

/// A change of a layer's blend mode.
class ImageLayerBlend : public ImageUndoCommand
{
public:
    ImageLayerBlend(ImageLayer* layer, QPainter::CompositionMode before);

    void undo() override;
    qint64 byteSize() const override;

protected:
    void doRedo() override;

private:
    LayerRef m_layer;
    QPainter::CompositionMode m_other;
};

}  // namespace Zorv
