#include "operations/media/imageedits.h"

#include "operations/media/imagefiles.h"

#include <zorv/core/jobs.h>
#include <zorv/media/colorconversion.h>
#include <zorv/media/imagetransfer.h>
#include <zorv/media/tools/colorquantizer.h>
#include <zorv/media/tools/cropimage.h>
#include <zorv/media/tools/resizeimage.h>
#include <zorv/media/tools/rotateimage.h>

#include <QCoreApplication>

namespace Operations {

namespace {

const int MaxSide = 32767;

// Limits memory: several results are made at the same time.
const double MaxPixels = 1 << 27;

/// Makes the texts of this file known to translators.
class Text
{
    Q_DECLARE_TR_FUNCTIONS(Operations::ImageEdits)
};

Outcome editFile(const QString& fileName, const ImageEdit& edit, const OutputFiles& outputs,
                 int index)
{
    Outcome outcome;
    outcome.error = outputs.make(index, [&](QString* error) {
        const QImage image = Zorv::readImageFile(fileName, error);
        const QImage edited = image.isNull() ? image : edit(image, error);
        if (edited.isNull()) {
            *error = image.isNull() ? *error : QStringLiteral("'%1': %2").arg(fileName, *error);
            return QByteArray();
        }
        outcome.warning = lossOf(edited, outputs, index);
        return imageFile(edited, outputs.format(index), outputs.path(index), error);
    });
    return outcome;
}

QVector<QRgb> colorTable(const QVector<Zorv::RGBA>& colors)
{
    QVector<QRgb> table;
    for (const Zorv::RGBA& color : colors) {
        table.append(qRgba(color.r, color.g, color.b, color.a));
    }
    return table;
}

}  // namespace

MediaResult editImages(const QStringList& files, const OutputRequest& request,
                       const ImageEdit& edit)
{
    MediaResult result;
    OutputFiles outputs;
    MediaResult refusal;
    if (!outputs.plan(files, request, {}, &refusal)) {
        return refusal;
    }
    const auto prepare = [&](int i) -> std::function<Outcome()> {
        return [&, i] { return editFile(files[i], edit, outputs, i); };
    };
    const auto take = [&](int, const Outcome& outcome) { result.note(outcome); };
    result.isCanceled = !Zorv::runJobs<Outcome>(Text::tr("Images"), files.size(), prepare, take);
    return result;
}

ImageEdit keepingImage()
{
    return [](const QImage& image, QString*) { return image; };
}

ImageEdit croppingImage(int background)
{
    return [background](const QImage& image, QString*) {
        QImage cropped = image;
        Zorv::cropImage(cropped, nullptr, background);
        return cropped;
    };
}

ImageEdit resizingImage(const QSize& size, double factor, Zorv::ImageResizeFilter filter)
{
    return [=](const QImage& image, QString* error) {
        const QSizeF wanted = factor > 0 ? QSizeF(image.size()) * factor : QSizeF(size);
        const bool fits = qMax(wanted.width(), wanted.height()) <= MaxSide &&
                          wanted.width() * wanted.height() <= MaxPixels;
        const QImage resized =
            fits ? Zorv::resizeImage(image, wanted.toSize().expandedTo({1, 1}), filter) : QImage();
        if (resized.isNull()) {
            *error = Text::tr("The result would be too large.");
        }
        return resized;
    };
}

ImageEdit rotatingImage(double degrees, int background, Zorv::ImageResizeFilter filter)
{
    return [=](const QImage& image, QString* error) {
        const bool isIndexed = image.format() == QImage::Format_Indexed8;
        const uint corners = isIndexed                 ? uint(background)
                             : image.hasAlphaChannel() ? 0
                                                       : 0xFF000000;
        const QImage rotated = Zorv::rotateImage(image, float(degrees), corners, filter);
        if (rotated.isNull()) {
            *error = Text::tr("The result would be too large.");
        }
        return rotated;
    };
}

ImageEdit quantizingImage(int colors)
{
    return [colors](const QImage& image, QString*) {
        return Zorv::ColorQuantizer::quantize(image, colors);
    };
}

ImageEdit adaptingImage(const QVector<Zorv::RGBA>& colors)
{
    return [colors](const QImage& image, QString*) {
        return Zorv::ColorQuantizer::adapt(image, colors);
    };
}

ImageEdit recoloringImage(const QVector<Zorv::RGBA>& colors)
{
    return [table = colorTable(colors)](const QImage& image, QString* error) {
        if (image.format() != QImage::Format_Indexed8) {
            *error =
                Text::tr("It has no palette. Have its pixels take the nearest colours instead.");
            return QImage();
        }
        QImage recolored = image;
        recolored.setColorTable(table);
        return recolored;
    };
}

QVector<Zorv::RGBA> commonPalette(const QStringList& files, int colors, MediaResult* result)
{
    struct Read
    {
        QImage image;
        QString error;
    };
    Zorv::ColorQuantizer quantizer;
    const auto prepare = [&](int i) -> std::function<Read()> {
        return [file = files[i]] {
            Read read;
            read.image = Zorv::readImageFile(file, &read.error);
            return read;
        };
    };
    const auto take = [&](int, const Read& read) {
        read.error.isEmpty() ? quantizer.addImage(read.image) : result->errors.append(read.error);
    };
    result->isCanceled = !Zorv::runJobs<Read>(Text::tr("Colours"), files.size(), prepare, take);
    const bool isDone = result->errors.isEmpty() && !result->isCanceled;
    return isDone ? quantizer.palette(colors) : QVector<Zorv::RGBA>();
}

}  // namespace Operations
