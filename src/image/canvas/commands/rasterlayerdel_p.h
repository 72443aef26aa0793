#pragma once

#include "image/canvas/commands/layercommand_p.h"

namespace Zorv {

/// A layer that was taken out of a row.
class RasterLayerDel : public LayerCommand
{
public:
    RasterLayerDel(ImageCanvas* canvas, ImageLayer* layer, int row);

    void undo() override;

protected:
    void doRedo() override;
};

}  // namespace Zorv
