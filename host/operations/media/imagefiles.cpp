#include "operations/media/imagefiles.h"

#include "assets/familypalette.h"
#include "core/files.h"
#include "media/imagefile.h"
#include "media/tools/colorquantizer.h"
#include "operations/media/outputfiles.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QFile>

namespace Family {

namespace {

const int GifColors = 256;

/// Makes the texts of this file known to translators.
class Text
{
    Q_DECLARE_TR_FUNCTIONS(Family::ImageFiles)
};

}  // namespace

QImage readImage(const QString& fileName, QString* error)
{
    QFile file(fileName);
    QImage image;
    if (!file.open(QIODevice::ReadOnly)) {
        *error = Text::tr("Cannot open '%1': %2. Check that the file is there and may be read.")
                     .arg(fileName, file.errorString());
    } else if (!Zorv::loadImage(&file, Zorv::fileExtension(fileName).constData(), image)) {
        image = QImage();
        *error = Text::tr("Cannot read '%1': it is no whole image of the format of its suffix. "
                          "Expected .png, .pcx, .bmp or .gif.")
                     .arg(fileName);
    } else if (image.format() == QImage::Format_Indexed8 && image.colorCount() == 0) {
        // A PCX file may lack its palette. Without any, other formats would show nothing.
        image.setColorTable(tableOfColors(greyColors()));
    }
    return image;
}

QByteArray imageFile(const QImage& image, const QByteArray& format, const QString& name,
                     QString* error)
{
    if (!isImageFormat(format)) {
        *error = Text::tr("Cannot write '%1': '%2' is no format of images. Expected .png, .pcx, "
                          ".bmp or .gif.")
                     .arg(name, QString::fromLatin1(format).toLower());
        return {};
    }
    const bool hasManyColors = format == "GIF" && image.format() != QImage::Format_Indexed8;
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    if (!Zorv::saveImage(&buffer, format.constData(),
                         hasManyColors ? Zorv::ColorQuantizer::quantize(image, GifColors)
                                       : image)) {
        *error = Text::tr("Cannot write '%1': an image of %2 by %3 does not fit the format. Choose "
                          "another one.")
                     .arg(name, QString::number(image.width()), QString::number(image.height()));
        return {};
    }
    return bytes;
}

QString writeImage(const QImage& image, const OutputFiles& outputs, int index)
{
    QString error;
    const QByteArray bytes = imageFile(image, outputs.format(index), outputs.path(index), &error);
    return error.isEmpty() ? outputs.write(index, bytes) : error;
}

bool isImageFormat(const QByteArray& format)
{
    return format == "PNG" || format == "PCX" || format == "BMP" || format == "GIF";
}

}  // namespace Family
