#include "image/canvas/commands/rasterlayerinsert_p.h"

namespace Zorv {

RasterLayerInsert::RasterLayerInsert(ImageCanvas* canvas, ImageLayer* layer, int row)
    : LayerCommand(QStringLiteral("layerInsert"), canvas, layer, HeldLayer::In, row)
{
}

void RasterLayerInsert::undo()
{
    takeOut();
}

void RasterLayerInsert::doRedo()
{
    putIn();
}

}  // namespace Zorv
