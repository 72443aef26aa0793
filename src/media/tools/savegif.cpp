#include "media/tools/savegif.h"

#include "media/colorconversion.h"
#include "media/tools/colorquantizer.h"
#include "media/tools/gifimage.h"

#include <QIODevice>

namespace Zorv {

bool saveGIF(QIODevice* device, const QVector<GIFFrame>& frames, const GIFOptions& options)
{
    QRect canvas;
    for (const GIFFrame& frame : frames) {
        canvas |= QRect(frame.position, frame.image.size());
    }
    if (canvas.isEmpty()) {
        return false;
    }
    GIFImage gif;
    gif.size = canvas.size();
    gif.loops = options.loops;
    qint64 ticks = 0;
    qint64 shown = 0;
    for (const GIFFrame& frame : frames) {
        GIFImage::SubImage picture;
        picture.image = ColorQuantizer::quantize(frame.image, 256);
        for (QRgb color : picture.image.colorTable()) {
            if (qAlpha(color) < 128 && picture.transparent < 0) {
                picture.transparent = picture.colors.size();
            }
            picture.colors.append({quint8(qRed(color)), quint8(qGreen(color)), quint8(qBlue(color))});
        }
        picture.left = frame.position.x() - canvas.left();
        picture.top = frame.position.y() - canvas.top();
        picture.disposal = GIFImage::ToBackground;
        ticks += qMax(1, frame.ticks);
        const qint64 end = (ticks * 100 + 30) / 60;
        picture.delay = int(end - shown);
        shown = end;
        gif.images.append(picture);
    }
    return gif.save(device);
}

}  // namespace Zorv
