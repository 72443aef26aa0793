#pragma once

#include "operations/media/mediaresult.h"

#include <QByteArray>
#include <QImage>
#include <QString>

namespace Operations {

class OutputFiles;

/// Encodes an image file. For GIF, images with more than 256 colours are reduced to the nearest
/// 256, and several transparent indices are merged into one. Empty, with `error`, if the format is
/// not supported for writing or cannot hold the image; `name` is used in the message. Re-entrant.
QByteArray imageFile(const QImage& image, const QByteArray& format, const QString& name,
                     QString* error);

/// A warning for the user about what an image will lose when it is written as a result: its
/// transparency in BMP, and in PCX with indexed colours; partial transparency in GIF. Empty if it
/// loses nothing. Re-entrant.
QString lossOf(const QImage& image, const OutputFiles& outputs, int index);

/// Writes an image as a result, with `lossOf()` as the warning. Re-entrant.
Outcome writeImage(const QImage& image, const OutputFiles& outputs, int index);

/// True for formats that images can be written in.
bool isImageFormat(const QByteArray& format);

}  // namespace Operations
