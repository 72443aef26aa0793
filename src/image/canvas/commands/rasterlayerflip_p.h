#pragma once

#include "image/canvas/imageundocommand.h"
#include "image/canvas/layerref_p.h"

namespace Zorv {

/// Mirrors a layer. Undo mirrors it again, so no pixels are kept.
class RasterLayerFlip : public ImageUndoCommand
{
public:
    RasterLayerFlip(ImageLayer* layer, bool horizontal, bool vertical);

    void undo() override;
    qint64 byteSize() const override;

protected:
    void doRedo() override;

private:
    LayerRef m_layer;
    bool m_horizontal;
    bool m_vertical;
};

}  // namespace Zorv
