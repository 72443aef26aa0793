#include "image/canvas/alikepalette_p.h"
#include "image/canvas/commands/imagecanvasaxis_p.h"
#include "image/canvas/commands/imagecanvassize_p.h"
#include "image/canvas/imagecanvas_p.h"
#include "image/canvas/imageforms_p.h"
#include "image/canvas/indexpainter.h"
#include "image/canvas/rgbapainter.h"
#include "media/tools/raster_p.h"

#include <algorithm>
#include <limits>
#include <utility>

// Signals are collected while a batch is open: `hold()` and `letGo()` nest, changes are merged into
// `notices`, and the last `letGo()` sends each signal once. So a change of many layers leads to one
// repaint.

namespace Zorv {

ImageCanvasPrivate::ImageCanvasPrivate(ImageCanvas* canvas)
    : q(canvas), palette(&noPalette), layers(new ImageLayers(canvas))
{
}

ImageCanvasPrivate::~ImageCanvasPrivate() = default;

void ImageCanvasPrivate::hold()
{
    ++batches;
}

void ImageCanvasPrivate::letGo()
{
    if (--batches == 0) {
        send(std::exchange(notices, Notices()));
    }
}

// The look is signalled first, so that a view is up to date when other signals arrive.
void ImageCanvasPrivate::send(const Notices& what)
{
    if (!what.part.isEmpty()) {
        emit q->partChanged(what.layer, what.part);
    }
    if (!what.selection.isEmpty()) {
        emit q->selectionChanged(what.selection);
    }
    if (what.format) {
        emit q->formatChanged();
    }
    if (what.size) {
        emit q->sizeChanged();
    }
    if (what.axis) {
        emit q->axisChanged();
    }
    if (what.list) {
        emit layers->changed();
    }
    if (what.look) {
        emit q->layerChanged();
    }
}

void ImageCanvasPrivate::looksDifferent(ImageLayer* layer, const QRect& rect)
{
    if (!layers->contains(layer) || rect.isEmpty()) {
        return;
    }
    hold();
    notices.layer = notices.part.isEmpty() || notices.layer == layer ? layer : nullptr;
    notices.part |= rect;
    notices.look = true;
    letGo();
}

void ImageCanvasPrivate::looksDifferent()
{
    hold();
    notices.layer = nullptr;
    notices.part |= QRect(QPoint(), size);
    notices.look = true;
    letGo();
}

void ImageCanvasPrivate::rowDiffers(ImageLayer* layer)
{
    const int row = layer->index();
    if (row >= 0) {
        hold();
        ImageLayersPrivate::of(q).tellRow(row);
        notices.list = true;
        letGo();
    }
}

void ImageCanvasPrivate::listDiffers()
{
    hold();
    notices.list = true;
    looksDifferent();
    letGo();
}

void ImageCanvasPrivate::selectionDiffers(const QRect& rect)
{
    hold();
    notices.selection |= rect & selection.mask().rect();
    letGo();
}

void ImageCanvasPrivate::push(ImageUndoCommand* command)
{
    stack.push(command);
}

void ImageCanvasPrivate::refuse(const QString& message)
{
    emit q->refused(message);
}

bool ImageCanvasPrivate::isPossible(const QSize& newSize, ImageCanvas::Format of)
{
    if (!isPossibleSize(newSize)) {
        refuse(tr("The image cannot have %1 by %2 pixels: each side must have from 1 to %3.")
                   .arg(QString::number(newSize.width()), QString::number(newSize.height()),
                        QString::number(ImageCanvas::MaxSide)));
        return false;
    }
    const qint64 pixelBytes = of == ImageCanvas::RGBAFormat ? 4 : 1;
    const qint64 pixels = qint64(newSize.width()) * newSize.height();
    // The mask takes one byte per pixel; a `QImage` cannot have more bytes than fit into an int.
    if (pixels * pixelBytes > std::numeric_limits<int>::max() ||
        !isMemoryFor(pixels * (pixelBytes * std::max(int(layers->count()), 1) + 1))) {
        refuse(tr("There is not enough memory for an image of %1 by %2 pixels.")
                   .arg(QString::number(newSize.width()), QString::number(newSize.height())));
        return false;
    }
    return true;
}

unsigned ImageCanvasPrivate::fill() const
{
    const unsigned char background = palette->background();
    return format == ImageCanvas::IndexedFormat ? background : palette->color(background);
}

unsigned ImageCanvasPrivate::clearPixel(ImageCanvas::Format of) const
{
    if (of == ImageCanvas::RGBAFormat) {
        return 0;
    }
    const int transparent = PaletteColors(*palette).transparent();
    return unsigned(transparent < 0 ? palette->background() : transparent);
}

QImage ImageCanvasPrivate::adapted(const QImage& image) const
{
    QImage result = image;
    if (format == ImageCanvas::IndexedFormat) {
        result = isIndexed(image) ? image : toIndices(layerImage(image), AlikePalette(palette));
    } else if (isIndexed(image) && image.colorCount() == 0) {
        result = toColors(image, *palette);
    } else {
        result = image.convertToFormat(QImage::Format_ARGB32);
    }
    result = layerImage(result);
    return result.isNull() || result.size() == size
               ? result
               : placed(result, size, QPoint(), clearPixel(format));
}

void ImageCanvasPrivate::applySize(const QSize& newSize)
{
    hold();
    notices.part |= QRect(QPoint(), size) | QRect(QPoint(), newSize);
    notices.layer = nullptr;
    size = newSize;
    selection.setSize(newSize);
    notices.size = true;
    selectionDiffers(selection.mask().rect());
    letGo();
}

void ImageCanvasPrivate::applyFormat(ImageCanvas::Format newFormat)
{
    hold();
    if (newFormat != format || !painter) {
        format = newFormat;
        painter.reset(q->painter(format, palette));
    }
    notices.format = true;
    looksDifferent();
    letGo();
}

void ImageCanvasPrivate::applyAxis(const QPoint& newAxis)
{
    if (newAxis != axis) {
        hold();
        axis = newAxis;
        notices.axis = true;
        letGo();
    }
}

void ImageCanvasPrivate::recordSize(const QSize& newSize)
{
    const QSize before = size;
    const QImage mask = selection.mask();
    const bool wasAll = selection.isAll();
    applySize(newSize);
    if (before != newSize || !wasAll) {
        push(new ImageCanvasSize(q, before, mask));
    }
}

void ImageCanvasPrivate::recordAxis(const QPoint& newAxis, int mergeId)
{
    const QPoint before = axis;
    if (before != newAxis) {
        applyAxis(newAxis);
        push(new ImageCanvasAxis(q, before, mergeId));
    }
}

bool ImageCanvasPrivate::enter(ImageLayer* layer)
{
    if (!layer || layer->index() >= 0 || size.isEmpty()) {
        return false;
    }
    q->endStroke();
    const QImage image = adapted(layer->image());
    if (image.isNull()) {
        return false;
    }
    *layer->pixels() = image;
    return true;
}

void ImageCanvasPrivate::layerLeaves(ImageLayer* layer, int row)
{
    hold();
    if (painter) {
        painter->setImage(nullptr);
    }
    if (layer == active) {
        const int last = int(layers->count()) - 1;
        q->setActiveLayer(layers->at(unsigned(std::min(row, last))));
    }
    listDiffers();
    letGo();
}

}  // namespace Zorv
