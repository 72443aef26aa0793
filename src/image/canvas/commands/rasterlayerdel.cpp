#include "image/canvas/commands/rasterlayerdel_p.h"

namespace Zorv {

RasterLayerDel::RasterLayerDel(ImageCanvas* canvas, ImageLayer* layer, int row)
    : LayerCommand(QStringLiteral("layerDelete"), canvas, layer, HeldLayer::Out, row)
{
}

void RasterLayerDel::undo()
{
    putIn();
}

void RasterLayerDel::doRedo()
{
    takeOut();
}

}  // namespace Zorv
