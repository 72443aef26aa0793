#include "operations/media/imagefiles.h"

#include "family/assets/familypalette.h"
#include "operations/media/outputfiles.h"

#include <zorv/core/files.h>
#include <zorv/media/imagefile.h>
#include <zorv/media/tools/colorquantizer.h>

#include <QBuffer>
#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <algorithm>

namespace Operations {

namespace {

const int GifColors = 256;

/// Makes the texts of this file known to translators.
class Text
{
    Q_DECLARE_TR_FUNCTIONS(Operations::ImageFiles)
};

/// Which pixels a format shows otherwise than the picture has them.
enum class Loss { None, Transparent, HalfTransparent };

Loss possibleLoss(const QByteArray& format, const QImage& image)
{
    if (format == "GIF") {
        return Loss::HalfTransparent;
    }
    const bool isIndexed = image.format() == QImage::Format_Indexed8;
    return format == "BMP" || (format == "PCX" && isIndexed) ? Loss::Transparent : Loss::None;
}

bool isLost(Loss loss, int alpha)
{
    return alpha < 255 && (alpha > 0 || loss == Loss::Transparent);
}

/// True if the picture has a pixel that would be lost.
bool hasLoss(const QImage& image, Loss loss)
{
    if (loss == Loss::None || !image.hasAlphaChannel()) {
        return false;
    }
    const QVector<QRgb> table = image.colorTable();
    const auto isLostIndex = [&table, loss](uchar index) {
        return index < table.size() && isLost(loss, qAlpha(table[index]));
    };
    for (int y = 0; y < image.height(); ++y) {
        const uchar* const line = image.constScanLine(y);
        const auto* const pixels = reinterpret_cast<const QRgb*>(line);
        const bool isFound = image.format() == QImage::Format_Indexed8
                                 ? std::any_of(line, line + image.width(), isLostIndex)
                                 : std::any_of(pixels, pixels + image.width(), [loss](QRgb pixel) {
                                       return isLost(loss, qAlpha(pixel));
                                   });
        if (isFound) {
            return true;
        }
    }
    return false;
}

/// GIF has one transparent index: pixels of others would show their colour.
QImage withOneTransparentIndex(QImage image)
{
    const QVector<QRgb> table = image.colorTable();
    const auto isTransparent = [](QRgb color) { return qAlpha(color) == 0; };
    const auto first = std::find_if(table.begin(), table.end(), isTransparent);
    if (std::count_if(first, table.end(), isTransparent) < 2) {
        return image;
    }
    for (int y = 0; y < image.height(); ++y) {
        uchar* const line = image.scanLine(y);
        std::replace_if(
            line, line + image.width(),
            [&](uchar index) { return index < table.size() && isTransparent(table[index]); },
            uchar(first - table.begin()));
    }
    return image;
}

QImage imageForGif(const QImage& image)
{
    return image.format() == QImage::Format_Indexed8
               ? withOneTransparentIndex(image)
               : Zorv::ColorQuantizer::quantize(image, GifColors);
}

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
        image.setColorTable(Family::tableOfColors(Family::greyColors()));
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
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    if (!Zorv::saveImage(&buffer, format.constData(),
                         format == "GIF" ? imageForGif(image) : image)) {
        *error = Text::tr("Cannot write '%1': an image of %2 by %3 does not fit the format. Choose "
                          "another one.")
                     .arg(name, QString::number(image.width()), QString::number(image.height()));
        return {};
    }
    return bytes;
}

QString lossOf(const QImage& image, const OutputFiles& outputs, int index)
{
    const QString name = outputs.path(index);
    const QByteArray format = outputs.format(index);
    const Loss loss = possibleLoss(format, image);
    if (!hasLoss(image, loss)) {
        return {};
    }
    const bool isReplaced = QFileInfo::exists(name);
    if (loss == Loss::HalfTransparent) {
        return (isReplaced ? Text::tr("'%1' was replaced without what is half transparent in the "
                                      "picture: GIF has no place for it. PNG keeps it.")
                           : Text::tr("'%1' was written without what is half transparent in the "
                                      "picture: GIF has no place for it. PNG keeps it."))
            .arg(name);
    }
    return (isReplaced ? Text::tr("'%1' was replaced without the transparency of the picture: %2 "
                                  "has no place for it. PNG keeps it.")
                       : Text::tr("'%1' was written without the transparency of the picture: %2 "
                                  "has no place for it. PNG keeps it."))
        .arg(name, format == "BMP" ? QStringLiteral("BMP") : Text::tr("PCX with indexed colours"));
}

Outcome writeImage(const QImage& image, const OutputFiles& outputs, int index)
{
    Outcome outcome;
    outcome.warning = lossOf(image, outputs, index);
    const QByteArray bytes =
        imageFile(image, outputs.format(index), outputs.path(index), &outcome.error);
    if (outcome.error.isEmpty()) {
        outcome.error = outputs.write(index, bytes);
    }
    return outcome;
}

bool isImageFormat(const QByteArray& format)
{
    return format == "PNG" || format == "PCX" || format == "BMP" || format == "GIF";
}

}  // namespace Operations
