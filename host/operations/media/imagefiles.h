#pragma once

#include "operations/media/mediaresult.h"

#include <QByteArray>
#include <QImage>
#include <QString>

namespace Operations {

class OutputFiles;

/// The bytes of an image file. GIF takes the nearest 256 colours of an image that has more, and one
/// transparent index for several. Empty, with `error`, for a format that images are not written in,
/// or that has no place for the image; `name` is what the message calls it. Re-entrant.
QByteArray imageFile(const QImage& image, const QByteArray& format, const QString& name,
                     QString* error);

/// What an image is about to lose as a result of a piece of work: its transparency, in BMP and in
/// PCX with indexed colours; what is half transparent, in GIF. For the person; empty if it loses
/// nothing. Re-entrant.
QString lossOf(const QImage& image, const OutputFiles& outputs, int index);

/// Writes an image as a result of a piece of work, with `lossOf()` as the warning. Re-entrant.
Outcome writeImage(const QImage& image, const OutputFiles& outputs, int index);

/// True for the formats in which images are written.
bool isImageFormat(const QByteArray& format);

}  // namespace Operations
