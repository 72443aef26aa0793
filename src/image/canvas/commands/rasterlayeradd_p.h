#pragma once

#include "image/canvas/commands/layercommand_p.h"

namespace Zorv {

/// A layer that was put on top.
class RasterLayerAdd : public LayerCommand
{
public:
    RasterLayerAdd(ImageCanvas* canvas, ImageLayer* layer);

    void undo() override;

protected:
    void doRedo() override;
};

}  // namespace Zorv
