#include "image/canvas/clipboardpicture_p.h"

#include "image/canvas/imagecanvas.h"
#include "image/canvas/imageforms_p.h"
#include "media/plainimages_p.h"
#include "media/tools/raster_p.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QMimeData>

namespace Zorv {

namespace {

class Texts
{
    Q_DECLARE_TR_FUNCTIONS(Zorv::ImageClipboard)
};

const QLatin1String AnyImage("image/");

/// The file formats read from the clipboard, best first. Other formats are not read: Qt's readers
/// for them may allocate any amount of memory, and show what was in it.
struct FileFormat
{
    QLatin1String name;
    QImage (*read)(QIODevice* device);
};

const FileFormat fileFormats[] = {
    {QLatin1String("image/png"), &readPlainPNG},
    {QLatin1String("image/bmp"), &readPlainBMP},
};

bool isPossible(const QSize& size)
{
    return !size.isEmpty() && size.width() <= ImageCanvas::MaxSide &&
           size.height() <= ImageCanvas::MaxSide &&
           isMemoryFor(qint64(size.width()) * size.height() * 4);
}

QImage anyPicture(const QMimeData& data)
{
    for (const FileFormat& format : fileFormats) {
        if (data.hasFormat(format.name)) {
            QByteArray bytes = data.data(format.name);
            QBuffer buffer(&bytes);
            buffer.open(QIODevice::ReadOnly);
            const QImage image = format.read(&buffer);
            if (!image.isNull()) {
                return image;
            }
        }
    }
    // Without a file the data may be an image of this program or of the system.
    return data.formats().filter(AnyImage).isEmpty() ? qvariant_cast<QImage>(data.imageData())
                                                     : QImage();
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
    const QImage usual = inLibraryForm(image);
    return isIndexed(usual) ? usual : usual.convertToFormat(QImage::Format_ARGB32);
}

}  // namespace Zorv
