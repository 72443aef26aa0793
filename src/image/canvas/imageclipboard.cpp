#include "image/canvas/imageclipboard.h"

#include "image/canvas/clipboardpicture_p.h"
#include "image/canvas/clipboardpiece_p.h"
#include "image/canvas/imagecanvas_p.h"
#include "image/canvas/imageforms_p.h"
#include "image/canvas/imagelayer.h"
#include "media/png.h"
#include "media/tools/raster_p.h"

#include <QBuffer>
#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>

#include <memory>

namespace Zorv {

namespace {

class Texts
{
    Q_DECLARE_TR_FUNCTIONS(Zorv::ImageClipboard)
};

void refuse(ImageCanvas* canvas, const QString& message)
{
    ImageCanvasPrivate::of(canvas).refuse(message);
}

/// The rectangle `box` of the pixels to copy; null, with a reason, if there is nothing to copy.
QImage selectedPart(const ImageCanvas& canvas, ImageClipboard::Source source, const QRect& box,
                    QString* reason)
{
    const ImageLayer* const layer = canvas.activeLayer();
    if (canvas.layers()->count() == 0 || (source == ImageClipboard::ActiveLayer && !layer)) {
        *reason = Texts::tr("There is no layer to copy from. Choose one first.");
        return {};
    }
    if (box.isEmpty()) {
        *reason = Texts::tr("Nothing is selected. Select some pixels first.");
        return {};
    }
    const QImage part =
        source == ImageClipboard::AllLayers ? canvas.mergePart(box) : layer->image().copy(box);
    if (part.isNull()) {
        *reason = Texts::tr("There is not enough memory to copy. Select fewer pixels.");
    }
    return part;
}

QMimeData* dataOf(const QImage& piece)
{
    QBuffer file;
    if (piece.isNull() || !savePNG(piece, &file)) {
        return nullptr;
    }
    auto data = std::make_unique<QMimeData>();
    data->setImageData(piece);
    data->setData(QStringLiteral("image/png"), file.data());
    return data.release();
}

bool pasteNew(ImageCanvas* canvas, const QImage& piece)
{
    ImageCanvasPrivate& d = ImageCanvasPrivate::of(canvas);
    if (!d.isPossible(canvas->size(), canvas->format())) {
        return false;
    }
    QImage image = emptyImage(canvas->size(), imageFormat(canvas->format()));
    image.fill(d.clearPixel(canvas->format()));
    drawPiece(piece, placeOf(piece, image.size()), canvas->palette(), &image);
    return d.macro("paste", [canvas, &image] {
        ImageLayer* const layer = canvas->newRasterLayer(image);
        if (layer) {
            canvas->setActiveLayer(layer);
        }
        return layer != nullptr;
    });
}

bool pasteOnto(ImageCanvas* canvas, const QImage& piece)
{
    ImageLayer* const layer = canvas->activeLayer();
    if (!layer || !layer->isVisible()) {
        refuse(canvas, Texts::tr("There is no visible layer to paste onto. Choose or show one "
                                 "first."));
        return false;
    }
    const QRect place = placeOf(piece, layer->image().size());
    canvas->beginStroke(layer, ImageCanvas::TiledStroke, QStringLiteral("paste"));
    if (canvas->willChange(place & layer->image().rect())) {
        drawPiece(piece, place, canvas->palette(), layer->pixels());
        canvas->changed(place);
    }
    canvas->endStroke();
    return true;
}

bool mayClear(ImageCanvas* canvas)
{
    const ImageLayer* const layer = canvas->activeLayer();
    if (layer && !layer->isVisible()) {
        refuse(canvas, Texts::tr("The active layer is hidden. Show it before you cut from it."));
        return false;
    }
    return true;
}

/// Clears the selected pixels of the active layer, as a step.
void clearLayer(ImageCanvas* canvas, const QString& title)
{
    ImageLayer* const layer = canvas->activeLayer();
    const QImage mask = selectionOf(*canvas);
    const QRect box = selectedRect(mask) & layer->image().rect();
    canvas->beginStroke(layer, ImageCanvas::TiledStroke, title);
    if (canvas->willChange(box)) {
        const auto form =
            isIndexed(layer->image()) ? ImageCanvas::IndexedFormat : ImageCanvas::RGBAFormat;
        clearSelected(mask, box, ImageCanvasPrivate::of(canvas).clearPixel(form), layer->pixels());
        canvas->changed(box);
    }
    canvas->endStroke();
}

}  // namespace

QMimeData* ImageClipboard::data(ImageCanvas* canvas, Source source)
{
    // An open stroke is visible to the user, so it must be copied, too.
    canvas->endStroke();
    const QImage mask = selectionOf(*canvas);
    const QRect box = selectedRect(mask);
    QString reason;
    const QImage part = selectedPart(*canvas, source, box, &reason);
    QMimeData* const result =
        part.isNull() ? nullptr : dataOf(pieceOf(part, mask, box.topLeft(), *canvas->palette()));
    if (!result) {
        refuse(canvas, reason.isEmpty() ? Texts::tr("The selected pixels cannot be written as a "
                                                    "PNG file. Select fewer of them.")
                                        : reason);
    }
    return result;
}

bool ImageClipboard::copy(ImageCanvas* canvas, Source source)
{
    QMimeData* const copied = data(canvas, source);
    if (copied) {
        QGuiApplication::clipboard()->setMimeData(copied);
    }
    return copied;
}

bool ImageClipboard::cut(ImageCanvas* canvas)
{
    if (!mayClear(canvas) || !copy(canvas, ActiveLayer)) {
        return false;
    }
    clearLayer(canvas, QStringLiteral("cut"));
    return true;
}

bool ImageClipboard::clear(ImageCanvas* canvas)
{
    if (!canvas->activeLayer() || !mayClear(canvas)) {
        return false;
    }
    clearLayer(canvas, QStringLiteral("clear"));
    return true;
}

bool ImageClipboard::canPaste(const QMimeData* data)
{
    return hasPicture(data ? data : QGuiApplication::clipboard()->mimeData());
}

bool ImageClipboard::paste(ImageCanvas* canvas, Target target, const QMimeData* data)
{
    QString reason;
    QImage piece;
    if (canvas->size().isEmpty()) {
        reason = Texts::tr("There is no image to paste into. Open one first.");
    } else {
        piece = clipboardPicture(data ? data : QGuiApplication::clipboard()->mimeData(), &reason);
    }
    if (piece.isNull()) {
        refuse(canvas, reason);
        return false;
    }
    canvas->endStroke();
    return target == NewLayer ? pasteNew(canvas, piece) : pasteOnto(canvas, piece);
}

}  // namespace Zorv
