#pragma once

#include "operations/media/mediaresult.h"
#include "operations/media/outputfiles.h"

#include <zorv/media/colortypes.h>
#include <zorv/media/tools/imageresizefilter.h>

#include <QImage>
#include <QSize>
#include <QVector>
#include <functional>

namespace Operations {

/// The edit of one image, called in worker threads. Returns the result, or null with an error for
/// the user.
using ImageEdit = std::function<QImage(const QImage& image, QString* error)>;

/// Reads images, edits each, and writes the results; see `OutputFiles` for where they go. The other
/// files are still processed if one cannot be read or written.
MediaResult editImages(const QStringList& files, const OutputRequest& request,
                       const ImageEdit& edit);

/// Keeps the image as it is, to convert its format.
ImageEdit keepingImage();

/// Crops the invisible border of an image; `background` is the invisible index.
ImageEdit croppingImage(int background);

/// Resizes to a size in pixels, or by `factor` if that is above 0.
ImageEdit resizingImage(const QSize& size, double factor, Zorv::ImageResizeFilter filter);

/// Rotates clockwise. The corners are filled with the index `background` in an indexed image. In
/// other images they are transparent, or black.
ImageEdit rotatingImage(double degrees, int background, Zorv::ImageResizeFilter filter);

/// Reduces an image to at most `colors` colours of its own.
ImageEdit quantizingImage(int colors);

/// Replaces each colour by the nearest of these colours.
ImageEdit adaptingImage(const QVector<Zorv::RGBA>& colors);

/// Keeps the indices and replaces the colours. Fails for images that are not indexed.
ImageEdit recoloringImage(const QVector<Zorv::RGBA>& colors);

/// A palette of at most `colors` colours for all images together. Empty, with `result`, if an image
/// cannot be read or the user canceled.
QVector<Zorv::RGBA> commonPalette(const QStringList& files, int colors, MediaResult* result);

}  // namespace Operations
