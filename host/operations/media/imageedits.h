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

/// What is done with each image of a piece of work, in other threads: gives the result, or null
/// with a reason for the person.
using ImageEdit = std::function<QImage(const QImage& image, QString* error)>;

/// Reads images, edits each, and writes the results; see `OutputFiles` for where to. A file that
/// cannot be read or written does not keep the others from it.
MediaResult editImages(const QStringList& files, const OutputRequest& request,
                       const ImageEdit& edit);

/// The image as it is, for another format.
ImageEdit keepingImage();

/// Cuts off what does not show around an image; `background` is the index that does not show.
ImageEdit croppingImage(int background);

/// Another size in pixels; or as many times the size, if `factor` is above 0.
ImageEdit resizingImage(const QSize& size, double factor, Zorv::ImageResizeFilter filter);

/// Turned clockwise. In the corners stands the index `background` of an indexed image, and nothing,
/// or black, in any other.
ImageEdit rotatingImage(double degrees, int background, Zorv::ImageResizeFilter filter);

/// At most so many colours, of its own.
ImageEdit quantizingImage(int colors);

/// The nearest of these colours.
ImageEdit adaptingImage(const QVector<Zorv::RGBA>& colors);

/// The indices as they are, with these colours. Images that are not indexed are refused.
ImageEdit recoloringImage(const QVector<Zorv::RGBA>& colors);

/// At most so many colours that stand for those of all images together. Empty, with `result`,
/// if one of them cannot be read, or the person has given up.
QVector<Zorv::RGBA> commonPalette(const QStringList& files, int colors, MediaResult* result);

}  // namespace Operations
