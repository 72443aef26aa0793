#include "image/tools/pentool.h"

#include "image/canvas/imagecanvas.h"
#include "image/canvas/imagepainter.h"
#include "image/canvas/imagepalette.h"

namespace Zorv {

PenTool::PenTool(ImageCanvas* canvas, QObject* parent)
    : BasePenTool(canvas, true, QStringLiteral("pen"), parent)
{
}

void PenTool::doDraw(const QPoint& point, ImagePainter* painter)
{
    const ImagePalette* palette = canvas()->palette();
    painter->setColor(isLeftButton() ? palette->foreground() : palette->background());
    paint(painter, point, Joined);
}

}  // namespace Zorv
