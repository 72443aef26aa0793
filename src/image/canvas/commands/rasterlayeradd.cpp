#include "image/canvas/commands/rasterlayeradd_p.h"

namespace Zorv {

RasterLayerAdd::RasterLayerAdd(ImageCanvas* canvas, ImageLayer* layer)
    : LayerCommand(QStringLiteral("layerAdd"), canvas, layer, HeldLayer::In, 0)
{
}

void RasterLayerAdd::undo()
{
    takeOut();
}

void RasterLayerAdd::doRedo()
{
    putIn();
}

}  // namespace Zorv
