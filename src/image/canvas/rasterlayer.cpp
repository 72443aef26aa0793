#include "image/canvas/rasterlayer.h"

#include "image/canvas/commands/rasterlayeredit_p.h"
#include "image/canvas/commands/rasterlayerflip_p.h"
#include "image/canvas/imagecanvas_p.h"
#include "image/canvas/imageforms_p.h"
#include "image/canvas/imagepalette.h"
#include "media/paletteobject.h"
#include "media/tools/cropimage.h"
#include "media/tools/raster_p.h"
#include "media/tools/resizeimage.h"
#include "media/tools/rotateimage.h"

#include <algorithm>
#include <array>

namespace Zorv {

namespace {

/// The image with the colours of the palette, which image operations need to mix colours.
QImage withColors(const ImageLayer& layer)
{
    return layer.image().format() == QImage::Format_Indexed8 && layer.canvas()
               ? indexedView(layer.image(), layer.canvas()->palette()->toRgbPal())
               : layer.image();
}

/// Replaces the image as an undo step; false for a null image.
bool replace(ImageLayer* layer, const QImage& image)
{
    const QImage after = layerImage(image);
    if (after.isNull()) {
        return false;
    }
    ImageCanvas* const canvas = layer->canvas();
    if (samePixels(after, layer->image())) {
        return true;
    }
    if (layer->index() < 0) {
        layer->setImage(after);
        return true;
    }
    canvas->endStroke();
    const QImage before = layer->image();
    layer->setImage(after);
    ImageCanvasPrivate::of(canvas).push(
        new RasterLayerEdit(layer, PixelTiles::differences(before, after)));
    return true;
}

/// An operation with nothing to do returns its input. That may be a view (`indexedView()`) of
/// pixels that the layer is about to release, so the layer's own image is returned instead.
QImage owned(const QImage& result, const ImageLayer& layer)
{
    return result.constBits() == layer.image().constBits() ? layer.image() : result;
}

}  // namespace

RasterLayer::RasterLayer(ImageCanvas* canvas, const QImage& image) : ImageLayer(canvas)
{
    *pixels() = layerImage(image);
}

RasterLayer::RasterLayer(ImageCanvas* canvas, const QSize& size, ImageCanvas::Format format)
    : ImageLayer(canvas)
{
    QImage image(size, imageFormat(format));
    image.fill(canvas ? ImageCanvasPrivate::of(canvas).clearPixel(format) : 0U);
    *pixels() = layerImage(image);
}

RasterLayer::~RasterLayer() = default;

ImageLayer* RasterLayer::duplicate() const
{
    auto* const copy = new RasterLayer(canvas(), image());
    copy->setVisible(isVisible());
    copy->setName(name(), false);
    copy->setBlendMode(blendMode(), false);
    copy->setOpacity(opacity(), false);
    return copy;
}

bool RasterLayer::changePalette(const RGBA (&from)[256], const RGBA (&to)[256])
{
    if (!canvas() || canvas()->format() != ImageCanvas::IndexedFormat ||
        image().format() != QImage::Format_Indexed8) {
        return false;
    }
    RGBA colors[256];
    std::copy(std::begin(to), std::end(to), colors);
    const PaletteObject target(colors);
    std::array<quint8, 256> indices;
    std::transform(std::begin(from), std::end(from), indices.begin(),
                   [&target](RGBA color) { return target.index(color); });
    QImage result(image().size(), QImage::Format_Indexed8);
    if (result.isNull()) {
        return false;
    }
    const Raster<const quint8> source(image());
    const Raster<quint8> pixels(result);
    for (int y = 0; y < pixels.height; ++y) {
        const quint8* row = source.row(y);
        std::transform(row, row + pixels.width, pixels.row(y),
                       [&indices](quint8 index) { return indices[index]; });
    }
    return replace(this, result);
}

bool RasterLayer::flip(bool horizontal, bool vertical)
{
    if (image().isNull() || (!horizontal && !vertical)) {
        return !image().isNull();
    }
    const QImage flipped = image().mirrored(horizontal, vertical);
    if (flipped.isNull()) {
        return false;
    }
    if (samePixels(flipped, image())) {
        return true;
    }
    const bool record = index() >= 0;
    if (record) {
        canvas()->endStroke();
    }
    setImage(flipped);
    if (record) {
        ImageCanvasPrivate::of(canvas()).push(new RasterLayerFlip(this, horizontal, vertical));
    }
    return true;
}

bool RasterLayer::rotate(float angle, unsigned int fill, ImageResizeFilter filter)
{
    return replace(this, owned(rotateImage(withColors(*this), angle, fill, filter), *this));
}

bool RasterLayer::resize(const QSize& size, const QPoint& position, unsigned int fill)
{
    if (size == image().size()) {
        return true;
    }
    if (!isPossibleSize(size) || image().isNull()) {
        return false;
    }
    QPoint corner = position;
    if (position.x() <= ImageCanvas::Centered) {
        corner = {(size.width() - image().width()) >> 1, (size.height() - image().height()) >> 1};
    }
    return replace(this, placed(image(), size, corner, fill));
}

bool RasterLayer::resize(const QSize& size, ImageResizeFilter filter)
{
    return replace(this, owned(resizeImage(withColors(*this), size, filter), *this));
}

bool RasterLayer::reformat(ImageCanvas::Format format, ImagePalette* palette)
{
    if (image().isNull() || image().format() == imageFormat(format)) {
        return true;
    }
    return replace(this, format == ImageCanvas::RGBAFormat ? toColors(image(), *palette)
                                                           : toIndices(image(), *palette));
}

QRect RasterLayer::cropRect() const
{
    const bool indexed = image().format() == QImage::Format_Indexed8 && canvas();
    const bool hasTransparent = indexed && PaletteColors(*canvas()->palette()).transparent() >= 0;
    return cropImageRect(withColors(*this), hasTransparent ? -1 : 0);
}

}  // namespace Zorv
