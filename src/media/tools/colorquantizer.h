#pragma once

#include "media/colortypes.h"
#include "zorv_export.h"

#include <QImage>
#include <QVector>

#include <memory>

namespace Zorv {

class ColorQuantizerPrivate;

/// Finds the colours that stand best for those of images, by an octree.
///
/// Colours of any number of images are added, then a palette is made. Exact colours are kept when
/// there are few enough. The error is the mean of the squared differences over red, green, blue
/// and alpha; there is no dithering. Memory is that of its bins, however many pixels are added.
/// One thread at a time for each object.
class ZORV_EXPORT ColorQuantizer
{
public:
    ColorQuantizer();
    ~ColorQuantizer();

    /// Counts the pixels of an image. All transparent pixels are one colour.
    void addImage(const QImage& image);

    /// Counts one colour `count` times.
    void addColor(RGBA color, quint64 count = 1);

    /// At most `count` colours, 1 to 256; fewer if fewer were added. A transparent one comes first.
    QVector<RGBA> palette(int count) const;

    /// An image of `Format_Indexed8` with at most `count` colours of its own.
    static QImage quantize(const QImage& image, int count);

    /// An image of `Format_Indexed8` with the given colours, up to 256: each pixel takes the
    /// nearest one. Exact for an image that fits the palette.
    static QImage adapt(const QImage& image, const QVector<RGBA>& palette);

private:
    Q_DISABLE_COPY(ColorQuantizer)
    std::unique_ptr<ColorQuantizerPrivate> d;
};

}  // namespace Zorv
