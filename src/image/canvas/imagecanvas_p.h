#pragma once

#include "image/canvas/imagecanvas.h"
#include "image/canvas/imagelayers.h"
#include "image/canvas/imagepainter.h"
#include "image/canvas/imageselection.h"
#include "image/canvas/imageundostack.h"
#include "image/canvas/layerref_p.h"
#include "image/canvas/monopalette.h"
#include "image/canvas/pixeltiles_p.h"

#include <QCoreApplication>
#include <QRect>

#include <memory>
#include <optional>
#include <vector>

namespace Zorv {

class ImageUndoCommand;

/// The state that a canvas, its layers and its commands share.
class ImageCanvasPrivate
{
    Q_DECLARE_TR_FUNCTIONS(Zorv::ImageCanvas)

public:
    /// The signals to send when the last batch ends.
    struct Notices
    {
        bool size = false;
        bool format = false;
        bool axis = false;
        bool look = false;
        bool list = false;
        QRect part;
        ImageLayer* layer = nullptr;  ///< the only layer that changed; null if several did
        QRect selection;
    };

    /// A pixel change that is not a step yet. Without a layer it changes the selection mask.
    struct Stroke
    {
        LayerRef layer;
        ImageCanvas::StrokeKind kind;
        QString title;
        int mergeId;
        QImage before;     ///< for a `WholeStroke`
        PixelTiles tiles;  ///< for a `TiledStroke`
    };

    explicit ImageCanvasPrivate(ImageCanvas* canvas);
    ~ImageCanvasPrivate();

    static ImageCanvasPrivate& of(ImageCanvas* canvas) { return *canvas->d; }

    void hold();
    void letGo();
    void send(const Notices& what);

    /// Records what has changed, and sends it unless a batch holds it back. A layer that is not in
    /// the list is not visible, so it is ignored.
    void looksDifferent(ImageLayer* layer, const QRect& rect);
    void looksDifferent();
    void rowDiffers(ImageLayer* layer);
    void listDiffers();
    void selectionDiffers(const QRect& rect);

    void push(ImageUndoCommand* command);
    void refuse(const QString& message);
    bool isPossible(const QSize& newSize, ImageCanvas::Format of);

    /// Makes one step of several commands. If `act` returns false, all of them are undone.
    template <class Act>
    bool macro(const char* title, Act act)
    {
        const ImageCanvas::Batch batch(q);
        stack.beginMacro(QString::fromLatin1(title));
        const bool done = act();
        if (done) {
            stack.endMacro();
        } else {
            stack.cancelMacro();
            refuse(tr("There is not enough memory for this."));
        }
        return done;
    }

    /// Calls `act` for each layer until it returns false.
    template <class Act>
    bool forLayers(Act act)
    {
        for (unsigned i = 0; i < layers->count(); ++i) {
            if (!act(*layers->at(i))) {
                return false;
            }
        }
        return true;
    }

    /// The pixel that fills new area.
    unsigned fill() const;

    /// The pixel of an empty layer: transparent, or the background if no entry is transparent.
    unsigned clearPixel(ImageCanvas::Format of) const;

    /// The image converted to the format and size of the canvas. An indexed image without a table
    /// is taken to have the palette's colours. Null if memory is short.
    QImage adapted(const QImage& image) const;

    void applySize(const QSize& newSize);
    void applyFormat(ImageCanvas::Format newFormat);
    void applyAxis(const QPoint& newAxis);

    /// Like `applySize()` and `applyAxis()`, but recorded.
    void recordSize(const QSize& newSize);
    void recordAxis(const QPoint& newAxis, int mergeId = 0);

    bool resizeLayers(const QSize& newSize, const QPoint& corner);
    bool reformatLayers(ImageCanvas::Format newFormat, ImagePalette* entries);
    bool rotateLayers(bool all, float angle, ImageResizeFilter filter);

    /// Converts a layer so that it can be added to the list.
    bool enter(ImageLayer* layer);
    void layerLeaves(ImageLayer* layer, int row);

    /// Makes an open stroke on a layer save all of it, in addition to what was announced.
    void keepWhole(const ImageLayer* layer);

    /// Registers the stroke with the history: it can be undone from now on.
    void tellStroke();
    void endStroke();

    ImageCanvas* const q;
    MonoPalette noPalette;
    ImagePalette* palette = nullptr;
    ImageSelection selection;
    std::unique_ptr<ImagePainter> painter;
    std::unique_ptr<ImageLayers> layers;
    ImageLayer* active = nullptr;
    QPoint position;
    QSize size = QSize(0, 0);
    QPoint axis;
    double zoom = 1.0;
    ImageCanvas::Format format = ImageCanvas::RGBAFormat;
    std::optional<Stroke> stroke;
    int batches = 0;
    Notices notices;
    ImageUndoStack stack;  ///< last, so destroyed first: its commands hold layers
};

/// The part of a layer list that commands and the rest of the library use.
class ImageLayersPrivate
{
public:
    void insert(LayerRef layer, int row);
    LayerRef take(int row);
    void tellRow(int row);

    ImageLayers* q;
    ImageCanvas* canvas;
    std::vector<LayerRef> list;

    static ImageLayersPrivate& of(ImageCanvas* canvas);
};

}  // namespace Zorv
