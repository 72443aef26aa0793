#include "image/canvas/imagecanvas.h"

#include "image/canvas/imagecanvas_p.h"
#include "image/canvas/imageforms_p.h"
#include "image/canvas/imagemerge_p.h"
#include "image/canvas/imagepalette.h"
#include "image/canvas/indexpainter.h"
#include "image/canvas/rasterlayer.h"
#include "image/canvas/rgbapainter.h"

#include <algorithm>
#include <cmath>

namespace Zorv {

namespace {

const double SmallestShown = 50;
const double LargestZoom = 10;

}  // namespace

ImageCanvas::Batch::Batch(ImageCanvas* canvas) : m_canvas(canvas)
{
    canvas->d->hold();
}

ImageCanvas::Batch::~Batch()
{
    m_canvas->d->letGo();
}

ImageCanvas::ImageCanvas(ImagePalette* palette, QObject* parent)
    : QObject(parent), d(std::make_unique<ImageCanvasPrivate>(this))
{
    setPalette(palette);
    connect(&d->stack, &ImageUndoStack::aboutToMove, this, [this] {
        d->hold();
        // The stack only ends a stroke that has announced a change; this one may not have.
        endStroke();
    });
    connect(&d->stack, &ImageUndoStack::moved, this, [this] { d->letGo(); });
}

ImageCanvas::~ImageCanvas()
{
    d->stroke.reset();
    d->stack.disconnect(this);
}

ImagePalette* ImageCanvas::palette() const
{
    return d->palette;
}

void ImageCanvas::setPalette(ImagePalette* palette)
{
    d->palette = palette ? palette : &d->noPalette;
    d->painter.reset();
    d->looksDifferent();
}

ImageSelection* ImageCanvas::selection() const
{
    return &d->selection;
}

ImageLayers* ImageCanvas::layers() const
{
    return d->layers.get();
}

ImageUndoStack* ImageCanvas::undoStack() const
{
    return &d->stack;
}

ImageLayer* ImageCanvas::activeLayer() const
{
    return d->active;
}

void ImageCanvas::setActiveLayer(ImageLayer* layer)
{
    if (layer != d->active && (!layer || d->layers->contains(layer))) {
        endStroke();
        d->active = layer;
        emit activeLayerChanged(layer);
    }
}

QPoint ImageCanvas::position() const
{
    return d->position;
}

void ImageCanvas::setPosition(const QPoint& position)
{
    d->position = position;
    emit positionChanged();
}

QSize ImageCanvas::size() const
{
    return d->size;
}

ImageCanvas::Format ImageCanvas::format() const
{
    return d->format;
}

double ImageCanvas::zoomLevel() const
{
    return d->zoom;
}

void ImageCanvas::setZoomLevel(double zoom)
{
    if (!std::isfinite(zoom) || d->size.isEmpty()) {
        return;
    }
    const double side = std::min(d->size.width(), d->size.height());
    if (side * zoom < SmallestShown) {
        zoom = SmallestShown / side;
    } else if (zoom > LargestZoom) {
        zoom = LargestZoom;
    }
    d->zoom = zoom;
    emit zoomChanged();
}

QPoint ImageCanvas::axis() const
{
    return d->axis;
}

void ImageCanvas::setAxis(const QPoint& axis)
{
    d->applyAxis(axis);
}

QImage ImageCanvas::mergeLayers(QString* name) const
{
    for (unsigned i = d->layers->count(); name && i > 0; --i) {
        if (d->layers->at(i - 1)->isVisible()) {
            *name = d->layers->at(i - 1)->name();
            break;
        }
    }
    return mergePart(QRect(QPoint(), d->size));
}

QImage ImageCanvas::mergePart(const QRect& part) const
{
    const QRect inside = part & QRect(QPoint(), d->size);
    if (inside.isEmpty()) {
        return {};
    }
    std::vector<const ImageLayer*> visible;
    std::vector<QImage> images;
    for (unsigned i = 0; i < d->layers->count(); ++i) {
        const ImageLayer* const layer = d->layers->at(i);
        if (!layer->isVisible() || layer->image().isNull()) {
            continue;
        }
        visible.push_back(layer);
        // While the format has changed but the layers have not, a layer may still be true colour.
        images.push_back(d->format == RGBAFormat ||
                                 layer->image().format() == QImage::Format_Indexed8
                             ? layer->image()
                             : toIndices(layer->image(), *d->palette));
    }
    return d->format == RGBAFormat ? mergeColors(visible, inside)
                                   : mergeIndexed(images, inside, *d->palette);
}

ImagePainter* ImageCanvas::painter()
{
    if (!d->painter) {
        d->painter.reset(painter(d->format, d->palette));
    }
    d->painter->setImage(d->active ? d->active->pixels() : nullptr);
    return d->painter.get();
}

ImagePainter* ImageCanvas::painter(Format format, ImagePalette* palette)
{
    ImagePalette* const colors = palette ? palette : d->palette;
    if (format == RGBAFormat) {
        return new RGBAPainter(colors, &d->selection);
    }
    return new IndexPainter(colors, &d->selection);
}

ImageLayer* ImageCanvas::newRasterLayer(const QImage& image)
{
    if (!d->isPossible(d->size, d->format)) {
        return nullptr;
    }
    // Adapted before it becomes a layer: layers drop the colour table that gives its colours.
    ImageLayer* const layer = image.isNull() ? new RasterLayer(this, d->size, d->format)
                                             : new RasterLayer(this, d->adapted(image));
    if (!d->layers->add(layer, true)) {
        layer->release();
        return nullptr;
    }
    return layer;
}

}  // namespace Zorv
