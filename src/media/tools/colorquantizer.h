#pragma once

#include "media/colortypes.h"
#include "zorv_export.h"

#include <QImage>
#include <QVector>

#include <memory>

namespace Zorv {

class ColorQuantizerPrivate;

/// Finds the palette that represents images best, using an octree.
///
/// Add the colours of any number of images, then make a palette. If there are few enough colours,
/// they are kept exactly. The error is the mean squared difference over red, green, blue and alpha;
/// there is no dithering. The bins take about 300 KB, however many pixels are added. All pixels of
/// alpha 0 count as one colour. Each object may be used by one thread at a time; the static
/// functions are re-entrant.
class ZORV_EXPORT ColorQuantizer
{
public:
    ColorQuantizer();
    ~ColorQuantizer();

    /// Counts the pixels of an image of any format. An index beyond the colour table is
    /// transparent.
    void addImage(const QImage& image);

    /// Counts one colour `count` times.
    void addColor(RGBA color, quint64 count = 1);

    /// At most `count` colours, 1 to 256; fewer if fewer were added. If transparent pixels were
    /// added, the first colour is 0 (unless `count` is 1). The others go from dark to bright.
    QVector<RGBA> palette(int count) const;

    /// Converts to `Format_Indexed8` with at most `count` colours, chosen for this image. An
    /// indexed image with no more colours than that keeps its colour table and its indices.
    static QImage quantize(const QImage& image, int count);

    /// Converts to `Format_Indexed8` with the given colours, up to 256. Each pixel takes the colour
    /// with the least squared distance over red, green, blue and alpha; the first one among equals.
    /// A pixel of alpha 0 takes the first entry of the lowest alpha. The result is exact if the
    /// palette has all colours of the image. A pixel of an indexed image keeps its index if the
    /// palette has the same colour there. Null without colours or for a null image.
    static QImage adapt(const QImage& image, const QVector<RGBA>& palette);

private:
    Q_DISABLE_COPY(ColorQuantizer)
    std::unique_ptr<ColorQuantizerPrivate> d;
};

}  // namespace Zorv
