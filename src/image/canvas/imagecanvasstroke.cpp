// Strokes: changes of pixels by hand. The old pixels are saved while a stroke is open; when it
// ends, only the tiles that really differ become an undo step.

#include "image/canvas/commands/imageselectionedit_p.h"
#include "image/canvas/commands/rasterlayeredit_p.h"
#include "image/canvas/imagecanvas_p.h"

#include <utility>

namespace Zorv {

namespace {

const QImage& targetOf(ImageCanvasPrivate& canvas, const ImageCanvasPrivate::Stroke& stroke)
{
    return stroke.layer ? stroke.layer->image() : canvas.selection.mask();
}

}  // namespace

void ImageCanvas::changing(ImageLayer* layer)
{
    if (layer) {
        beginStroke(layer, WholeStroke, QStringLiteral("edit"));
    }
}

void ImageCanvas::beginStroke(ImageLayer* layer, StrokeKind kind, const QString& title, int mergeId)
{
    endStroke();
    if (layer && !d->layers->contains(layer)) {
        return;
    }
    ImageCanvasPrivate::Stroke stroke = {LayerRef(layer), kind, title, mergeId, {}, {}};
    const QImage& image = targetOf(*d, stroke);
    stroke.tiles = PixelTiles(image);
    if (kind == WholeStroke) {
        // Shared, not copied, until the first pixel is written.
        stroke.before = image;
    }
    d->stroke.emplace(std::move(stroke));
    if (kind == WholeStroke) {
        d->tellStroke();
    }
}

bool ImageCanvas::willChange(const QRect& rect)
{
    if (!d->stroke) {
        return false;
    }
    if (d->stroke->kind == TiledStroke) {
        d->stroke->tiles.save(targetOf(*d, *d->stroke), rect);
        d->tellStroke();
    }
    return true;
}

void ImageCanvas::changed(const QRect& rect)
{
    if (!d->stroke) {
        return;
    }
    if (d->stroke->layer) {
        d->looksDifferent(d->stroke->layer.get(), rect & d->stroke->layer->image().rect());
    } else {
        d->selectionDiffers(rect);
    }
}

void ImageCanvas::endStroke()
{
    d->endStroke();
}

bool ImageCanvas::isStroking() const
{
    return d->stroke.has_value();
}

bool ImageCanvas::setSelection(const QImage& mask)
{
    if (mask.size() != d->size || mask.format() != QImage::Format_Indexed8) {
        return false;
    }
    beginStroke(nullptr, WholeStroke, QStringLiteral("select"));
    d->selection.fromMask(mask);
    changed(mask.rect());
    endStroke();
    return true;
}

void ImageCanvasPrivate::tellStroke()
{
    const QString other = stroke->layer ? QStringLiteral("edit") : QStringLiteral("select");
    stack.setPending([this] { endStroke(); }, stroke->title.isEmpty() ? other : stroke->title);
}

void ImageCanvasPrivate::keepWhole(const ImageLayer* layer)
{
    if (stroke && stroke->layer.get() == layer && stroke->kind == ImageCanvas::TiledStroke) {
        q->willChange(layer->image().rect());
    }
}

// The stroke is still pending on the stack, which calls this again while the command is pushed.
// That call does nothing, and no clean state is signalled in between.
void ImageCanvasPrivate::endStroke()
{
    if (!stroke) {
        return;
    }
    Stroke ended = std::move(*stroke);
    stroke.reset();
    const QImage& after = targetOf(*this, ended);
    if (ended.kind == ImageCanvas::WholeStroke) {
        ended.tiles = PixelTiles::differences(ended.before, after);
    } else {
        ended.tiles.dropEqual(after);
    }
    // Released before the push: otherwise the next write would have to copy all pixels.
    ended.before = QImage();
    ImageUndoCommand* command = nullptr;
    if (ended.layer) {
        command = new RasterLayerEdit(ended.layer.get(), std::move(ended.tiles), ended.mergeId);
    } else {
        command = new ImageSelectionEdit(q, std::move(ended.tiles));
    }
    if (!ended.title.isEmpty()) {
        command->setText(ended.title);
    }
    push(command);
    emit q->strokeEnded();
}

}  // namespace Zorv
