#pragma once

#include "image/canvas/commands/layercommand_p.h"

namespace Zorv {

/// Adds a layer on top.
class RasterLayerAdd : public LayerCommand
{
public:
    RasterLayerAdd(ImageCanvas* canvas, ImageLayer* layer);

    void undo() override;

protected:
    void doRedo() override;
};

}  // namespace Zorv
