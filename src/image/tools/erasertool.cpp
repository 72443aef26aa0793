#include "image/tools/erasertool.h"

#include "image/canvas/imagecanvas.h"
#include "image/canvas/imagepainter.h"
#include "image/canvas/imagepalette.h"

namespace Zorv {

EraserTool::EraserTool(ImageCanvas* canvas, QObject* parent)
    : BasePenTool(canvas, true, QStringLiteral("eraser"), parent)
{
}

void EraserTool::doDraw(const QPoint& point, ImagePainter* painter)
{
    const ImagePalette* palette = canvas()->palette();
    if (!isLeftButton()) {
        painter->setRemap(palette->foreground(), palette->background());
    }
    painter->setColor(palette->background());
    paint(painter, point, Joined);
    painter->clearRemap();
}

}  // namespace Zorv
