#pragma once

#include "image/canvas/imageundocommand.h"
#include "image/canvas/layerref_p.h"

namespace Zorv {

/// A layer that was mirrored: mirrored again it is as before, so no pixel is kept.
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
