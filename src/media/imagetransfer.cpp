#include "media/imagetransfer.h"

#include "core/files.h"
#include "media/imagefile.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QFile>

#include <algorithm>

namespace Zorv {

namespace {

constexpr int ColorCount = 256;

/// Makes the texts of this file known to translators.
class Text
{
    Q_DECLARE_TR_FUNCTIONS(Zorv::ImageTransfer)
};

/// What a format cannot represent, regardless of the pixels of the image.
ImageLoss possibleLoss(const QByteArray& format, const QImage& image)
{
    if (format == "GIF") {
        return ImageLoss::HalfTransparent;
    }
    const bool isIndexed = image.format() == QImage::Format_Indexed8;
    return format == "BMP" || (format == "PCX" && isIndexed) ? ImageLoss::Transparent
                                                             : ImageLoss::None;
}

bool isLost(ImageLoss loss, int alpha)
{
    return alpha < 255 && (alpha > 0 || loss == ImageLoss::Transparent);
}

/// True if the image has a pixel that would be lost.
bool hasLoss(const QImage& image, ImageLoss loss)
{
    if (loss == ImageLoss::None || !image.hasAlphaChannel()) {
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

/// GIF has only one transparent index; pixels of any other would show their colour.
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

QVector<QRgb> shadesOfGrey()
{
    QVector<QRgb> table;
    for (int i = 0; i < ColorCount; ++i) {
        table.append(qRgb(i, i, i));
    }
    return table;
}

}  // namespace

QImage readImageFile(const QString& fileName, QString* error)
{
    QFile file(fileName);
    QImage image;
    if (!file.open(QIODevice::ReadOnly)) {
        *error = Text::tr("Cannot open '%1': %2. Check that the file is there and may be read.")
                     .arg(fileName, file.errorString());
    } else if (!loadImage(&file, fileExtension(fileName).constData(), image)) {
        image = QImage();
        *error = Text::tr("Cannot read '%1': it is no whole image of the format of its suffix. "
                          "Expected .png, .pcx, .bmp or .gif.")
                     .arg(fileName);
    } else if (image.format() == QImage::Format_Indexed8 && image.colorCount() == 0) {
        // A PCX file may lack its palette. Saved in another format, the image would then be blank.
        image.setColorTable(shadesOfGrey());
    }
    return image;
}

QByteArray imageFileBytes(const QImage& image, const QByteArray& format)
{
    const bool isIndexed = image.format() == QImage::Format_Indexed8;
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    const bool isWritten =
        saveImage(&buffer, format.constData(),
                  isIndexed && format == "GIF" ? withOneTransparentIndex(image) : image);
    return isWritten ? bytes : QByteArray();
}

ImageLoss imageLoss(const QImage& image, const QByteArray& format)
{
    const ImageLoss loss = possibleLoss(format, image);
    return hasLoss(image, loss) ? loss : ImageLoss::None;
}

}  // namespace Zorv
