#pragma once

#include "image/canvas/imagelayer.h"

namespace Zorv {

/// A layer of pixels.
class ZORV_EXPORT RasterLayer : public ImageLayer
{
public:
    /// Keeps an indexed image as it is, without its colour table, and converts any other to
    /// `Format_ARGB32`. A canvas converts it to its own format and size when the layer is added.
    RasterLayer(ImageCanvas* canvas, const QImage& image);

    /// An empty layer: all pixels are transparent, or background if the palette of an indexed
    /// canvas has no transparent entry.
    RasterLayer(ImageCanvas* canvas, const QSize& size, ImageCanvas::Format format);

    ImageLayer* duplicate() const override;
    bool changePalette(const RGBA (&from)[256], const RGBA (&to)[256]) override;
    bool flip(bool horizontal, bool vertical) override;
    bool rotate(float angle, unsigned int fill, ImageResizeFilter filter) override;
    bool resize(const QSize& size, const QPoint& position, unsigned int fill) override;
    bool resize(const QSize& size, ImageResizeFilter filter) override;
    bool reformat(ImageCanvas::Format format, ImagePalette* palette) override;
    QRect cropRect() const override;

protected:
    ~RasterLayer() override;
};

}  // namespace Zorv
