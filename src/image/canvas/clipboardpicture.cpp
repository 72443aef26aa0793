#include "image/canvas/clipboardpicture_p.h"

#include "image/canvas/imagecanvas.h"
#include "image/canvas/imageforms_p.h"
#include "media/imagesize_p.h"
#include "media/png.h"
#include "media/tools/raster_p.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QImageReader>
#include <QMimeData>

namespace Zorv {

namespace {

class Texts
{
    Q_DECLARE_TR_FUNCTIONS(Zorv::ImageClipboard)
};

const QLatin1String PNG("image/png");
const QLatin1String AnyImage("image/");

// No format of pictures packs pixels more than PNG can.
constexpr double LargestPacking = 1032;

bool isPossible(const QSize& size)
{
    return !size.isEmpty() && size.width() <= ImageCanvas::MaxSide &&
           size.height() <= ImageCanvas::MaxSide &&
           isMemoryFor(qint64(size.width()) * size.height() * 4);
}

/// What loads the picture takes memory first, so the head is asked before.
QImage loadOther(QBuffer* buffer)
{
    QImageReader reader(buffer);
    reader.setAutoTransform(false);
    const QSize size = reader.size();
    const bool isHonest = isHonestSize(double(size.width()) * size.height(), 32,
                                       double(buffer->size()) * LargestPacking);
    return isPossible(size) && isHonest ? reader.read() : QImage();
}

QImage load(QByteArray bytes, const QString& format)
{
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    QImage image;
    if (format == PNG) {
        loadPNG(image, &buffer);
    } else {
        image = loadOther(&buffer);
    }
    return image;
}

QImage inCanvasForm(const QImage& image)
{
    switch (image.format()) {
    case QImage::Format_Indexed8:
    case QImage::Format_ARGB32:
        return image;
    case QImage::Format_Mono:
    case QImage::Format_MonoLSB:
    case QImage::Format_Grayscale8:
        return image.convertToFormat(QImage::Format_Indexed8);
    default:
        return image.convertToFormat(QImage::Format_ARGB32);
    }
}

/// The first picture that can be read, a PNG before all others.
QImage anyPicture(const QMimeData& data)
{
    QStringList formats = data.formats().filter(AnyImage);
    if (formats.removeAll(PNG) > 0) {
        formats.prepend(PNG);
    }
    for (const QString& format : qAsConst(formats)) {
        const QImage image = load(data.data(format), format);
        if (!image.isNull()) {
            return image;
        }
    }
    // Without a name of a file format it is an image of this program, or of the system.
    return formats.isEmpty() ? qvariant_cast<QImage>(data.imageData()) : QImage();
}

}  // namespace

bool hasPicture(const QMimeData* data)
{
    return data && (data->hasImage() || !data->formats().filter(AnyImage).isEmpty());
}

QImage clipboardPicture(const QMimeData* data, QString* reason)
{
    if (!hasPicture(data)) {
        *reason = Texts::tr("There is no picture on the clipboard. Copy one first.");
        return {};
    }
    const QImage image = anyPicture(*data);
    if (image.isNull()) {
        *reason = Texts::tr("The picture on the clipboard cannot be read. Copy it again, or save "
                            "it as a PNG file and open that.");
        return {};
    }
    if (!isPossible(image.size())) {
        *reason = Texts::tr("The picture on the clipboard has %1 by %2 pixels, which is too much. "
                            "Copy a smaller part of it.")
                      .arg(QString::number(image.width()), QString::number(image.height()));
        return {};
    }
    return inCanvasForm(image);
}

}  // namespace Zorv
