#include "operations/media/imagefiles.h"

#include "operations/media/outputfiles.h"

#include <zorv/media/imagetransfer.h>

#include <QCoreApplication>
#include <QFileInfo>

namespace Operations {

using Zorv::ImageLoss;

namespace {

/// Makes the texts of this file known to translators.
class Text
{
    Q_DECLARE_TR_FUNCTIONS(Operations::ImageFiles)
};

}  // namespace

QByteArray imageFile(const QImage& image, const QByteArray& format, const QString& name,
                     QString* error)
{
    if (!isImageFormat(format)) {
        *error = Text::tr("Cannot write '%1': '%2' is no format of images. Expected .png, .pcx, "
                          ".bmp or .gif.")
                     .arg(name, QString::fromLatin1(format).toLower());
        return {};
    }
    const QByteArray bytes = Zorv::imageFileBytes(image, format);
    if (bytes.isEmpty()) {
        *error = Text::tr("Cannot write '%1': an image of %2 by %3 does not fit the format. Choose "
                          "another one.")
                     .arg(name, QString::number(image.width()), QString::number(image.height()));
    }
    return bytes;
}

QString lossOf(const QImage& image, const OutputFiles& outputs, int index)
{
    const QString name = outputs.path(index);
    const QByteArray format = outputs.format(index);
    const ImageLoss loss = Zorv::imageLoss(image, format);
    if (loss == ImageLoss::None) {
        return {};
    }
    const bool isReplaced = QFileInfo::exists(name);
    if (loss == ImageLoss::HalfTransparent) {
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
