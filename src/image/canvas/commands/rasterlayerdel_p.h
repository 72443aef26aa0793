#pragma once

#include "image/canvas/commands/layercommand_p.h"

namespace Zorv {

/// Removes a layer.
class RasterLayerDel : public LayerCommand
{
public:
    RasterLayerDel(ImageCanvas* canvas, ImageLayer* layer, int row);

    void undo() override;

protected:
    void doRedo() override;
};

}  // namespace Zorv
