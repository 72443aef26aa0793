#include "image/tools/floodfilltool.h"

#include "image/canvas/imagecanvas.h"
#include "image/canvas/imagepainter.h"
#include "image/canvas/imagepalette.h"

#include <QRect>

namespace Zorv {

FloodFillTool::FloodFillTool(ImageCanvas* canvas, QObject* parent) : PickerTool(canvas, parent) {}

void FloodFillTool::pick(ImagePainter* painter)
{
    canvas()->beginStroke(canvas()->activeLayer(), ImageCanvas::TiledStroke,
                          QStringLiteral("fill"));
    QRect written;
    painter->setAnnounce([this, &written](const QRect& rect) {
        written |= rect;
        return canvas()->willChange(rect);
    });
    painter->setColor(canvas()->palette()->foreground());
    painter->floodFill(lastPos());
    painter->setAnnounce({});
    if (!written.isEmpty()) {
        canvas()->changed(written);
    }
    canvas()->endStroke();
    emit layerChanged();
}

}  // namespace Zorv
