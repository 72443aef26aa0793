// Operations that change a whole canvas in one step. If one layer fails, all is undone. The axis
// may be any number found in a file, so moving it must not overflow an `int`.

#include "graphics/stage/rounding_p.h"
#include "image/canvas/alikepalette_p.h"
#include "image/canvas/commands/imagecanvasformat_p.h"
#include "image/canvas/imagecanvas_p.h"
#include "image/canvas/imageforms_p.h"

#include <QTransform>

#include <cmath>

namespace Zorv {

namespace {

/// Where a point goes when its image is turned about the middle and the result is centred on a
/// canvas.
QPoint turnedPoint(const QPoint& point, const QSize& image, const QSize& turned, float degrees,
                   const QSize& canvas)
{
    const QPointF middle(image.width() / 2.0, image.height() / 2.0);
    const QPointF away = QTransform().rotate(double(degrees)).map(QPointF(point) - middle);
    const QPoint corner((canvas.width() - turned.width()) >> 1,
                        (canvas.height() - turned.height()) >> 1);
    const QPointF place = away + QPointF(turned.width() / 2.0, turned.height() / 2.0);
    return stageSum({roundedInt(place.x()), roundedInt(place.y())}, corner);
}

int scaledPlace(int place, int from, int to)
{
    return from > 0 ? stageInt(std::llround(double(place) * to / from)) : place;
}

int mirroredPlace(int place, int length)
{
    return stageInt(qint64(length) - place);
}

}  // namespace

bool ImageCanvas::setSize(const QSize& size, const QPoint& position, bool record)
{
    endStroke();
    if (!d->isPossible(size, d->format)) {
        return false;
    }
    if (!record) {
        d->applySize(size);
        return true;
    }
    return d->macro("setSize", [&] { return d->resizeLayers(size, position); });
}

// Layers resize their pixels. The axis moves too, unless the canvas was empty or keeps its size.
bool ImageCanvasPrivate::resizeLayers(const QSize& newSize, const QPoint& corner)
{
    const QSize before = size;
    QPoint offset = corner;
    if (corner.x() <= ImageCanvas::Centered) {
        offset = {(newSize.width() - before.width()) >> 1,
                  (newSize.height() - before.height()) >> 1};
    }
    recordSize(newSize);
    if (!before.isEmpty() && before != newSize) {
        recordAxis(stageSum(axis, offset));
    }
    return forLayers([&](ImageLayer& layer) { return layer.resize(newSize, corner, fill()); });
}

bool ImageCanvas::setFormat(Format format, bool record)
{
    endStroke();
    if (!record) {
        d->applyFormat(format);
        return true;
    }
    return d->reformatLayers(format, d->palette);
}

bool ImageCanvas::convertTo(Format format)
{
    endStroke();
    AlikePalette entries(d->palette);
    return d->reformatLayers(format, &entries);
}

bool ImageCanvasPrivate::reformatLayers(ImageCanvas::Format newFormat, ImagePalette* entries)
{
    return (size.isEmpty() || isPossible(size, newFormat)) && macro("setFormat", [&] {
               const ImageCanvas::Format before = format;
               applyFormat(newFormat);
               if (before != newFormat) {
                   push(new ImageCanvasFormat(q, before));
               }
               return forLayers(
                   [&](ImageLayer& layer) { return layer.reformat(newFormat, entries); });
           });
}

bool ImageCanvas::moveAxis(const QPoint& axis, int mergeId)
{
    endStroke();
    if (d->layers->count() == 0) {
        return false;
    }
    d->recordAxis(axis, mergeId);
    return true;
}

bool ImageCanvas::flip(bool horizontal, bool vertical)
{
    endStroke();
    return d->layers->count() > 0 && d->macro("flip", [&] {
        const QPoint axis(horizontal ? mirroredPlace(d->axis.x(), d->size.width()) : d->axis.x(),
                          vertical ? mirroredPlace(d->axis.y(), d->size.height()) : d->axis.y());
        d->recordAxis(axis);
        return d->forLayers([&](ImageLayer& layer) { return layer.flip(horizontal, vertical); });
    });
}

bool ImageCanvas::rotate(float angle, ImageResizeFilter filter)
{
    return d->rotateLayers(false, angle, filter);
}

bool ImageCanvas::rotateAll(float angle, ImageResizeFilter filter)
{
    return d->rotateLayers(true, angle, filter);
}

bool ImageCanvasPrivate::rotateLayers(bool all, float angle, ImageResizeFilter filter)
{
    q->endStroke();
    if (layers->count() == 0 || (!all && !active) || !std::isfinite(angle)) {
        return false;
    }
    const QSize before = size;
    const QSizeF corners =
        QTransform().rotate(double(angle)).mapRect(QRectF(QPointF(), QSizeF(size))).size();
    if (!isPossible(QSize(int(corners.width()), int(corners.height())).expandedTo({1, 1}),
                    format)) {
        return false;
    }
    return macro("rotate", [&] {
        const auto turn = [&](ImageLayer& layer) { return layer.rotate(angle, fill(), filter); };
        if (!(all ? forLayers(turn) : turn(*active))) {
            return false;
        }
        const QSize turned = (all ? layers->at(0) : active)->image().size();
        const bool others = !all && layers->count() > 1;
        const QSize newSize = others ? turned.expandedTo(before) : turned;
        const QPoint growth((newSize.width() - before.width()) >> 1,
                            (newSize.height() - before.height()) >> 1);
        const QPoint newAxis =
            others ? stageSum(axis, growth) : turnedPoint(axis, before, turned, angle, newSize);
        if (newSize != before) {
            recordSize(newSize);
        }
        recordAxis(newAxis);
        const QPoint centered(ImageCanvas::Centered, 0);
        return forLayers(
            [&](ImageLayer& layer) { return layer.resize(newSize, centered, fill()); });
    });
}

bool ImageCanvas::resize(const QSize& size, ImageResizeFilter filter)
{
    endStroke();
    if (!d->isPossible(size, d->format)) {
        return false;
    }
    return size == d->size || d->macro("resize", [&] {
        const QSize before = d->size;
        d->recordSize(size);
        d->recordAxis({scaledPlace(d->axis.x(), before.width(), size.width()),
                       scaledPlace(d->axis.y(), before.height(), size.height())});
        return d->forLayers([&](ImageLayer& layer) { return layer.resize(size, filter); });
    });
}

bool ImageCanvas::crop()
{
    endStroke();
    QRect shown;
    d->forLayers([&shown](ImageLayer& layer) {
        shown |= layer.cropRect();
        return true;
    });
    shown &= QRect(QPoint(), d->size);
    if (shown.isEmpty()) {
        d->refuse(ImageCanvasPrivate::tr("There is nothing to crop to: no pixel shows."));
        return false;
    }
    return shown.size() == d->size ||
           d->macro("crop", [&] { return d->resizeLayers(shown.size(), -shown.topLeft()); });
}

bool ImageCanvas::changePalette(const RGBA (&from)[256], const RGBA (&to)[256])
{
    endStroke();
    return d->format == IndexedFormat && d->macro("changePalette", [&] {
        return d->forLayers([&](ImageLayer& layer) { return layer.changePalette(from, to); });
    });
}

}  // namespace Zorv
