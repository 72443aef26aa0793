#pragma once

#include "image/canvas/commands/layercommand_p.h"

namespace Zorv {

/// Inserts a layer at a row.
class RasterLayerInsert : public LayerCommand
{
public:
    RasterLayerInsert(ImageCanvas* canvas, ImageLayer* layer, int row);

    void undo() override;

protected:
    void doRedo() override;
};

}  // namespace Zorv
