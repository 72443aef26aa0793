#pragma once

#include "media/colortypes.h"
#include "media/tools/imageresizefilter.h"
#include "zorv_export.h"

#include <QImage>
#include <QObject>
#include <QPoint>
#include <QSize>

#include <memory>

namespace Zorv {

class CanvasContent;
class ImageCanvasPrivate;
class ImageLayer;
class ImageLayers;
class ImagePainter;
class ImagePalette;
class ImageSelection;
class ImageUndoStack;

/// The image being edited: layers in one pixel format, a selection mask, an axis, and the history.
///
/// A whole canvas is either indexed or true colour, and all its layers have its size. A new one is
/// empty, true colour, at zoom 1, without layers.
///
/// A function that returns false has changed nothing. If a user asked for something impossible,
/// such as a size of 0, `refused()` carries the reason. An operation is an undo step where its
/// description says so.
///
/// Step titles are fixed names that a host translates: the ones quoted at the operations here,
/// "edit" for pixels, and for layers "layerName", "layerBlend", "layerOpacity", "layerAdd",
/// "layerInsert" and "layerDelete". A stroke has the title it was begun with.
///
/// Main thread only.
class ZORV_EXPORT ImageCanvas : public QObject
{
    Q_OBJECT

public:
    enum Format {
        IndexedFormat = 0,  ///< layers of `QImage::Format_Indexed8`
        RGBAFormat = 1      ///< layers of `QImage::Format_ARGB32`
    };

    /// How a stroke saves the old pixels for undo.
    enum StrokeKind {
        WholeStroke,  ///< saves all of the target: pixels may be written anywhere, at any time
        TiledStroke   ///< saves what `willChange()` announces: nothing else may be written
    };

    /// The largest width and height.
    static constexpr int MaxSide = 32767;

    /// As x of a position: centred. Any x below -65535 means the same.
    static constexpr int Centered = -65536;

    /// Holds back the signals of a canvas, and at the end sends each of them once.
    class ZORV_EXPORT Batch
    {
    public:
        explicit Batch(ImageCanvas* canvas);
        ~Batch();

    private:
        Q_DISABLE_COPY(Batch)
        ImageCanvas* m_canvas;
    };

    /// See `setPalette()`.
    explicit ImageCanvas(ImagePalette* palette = nullptr, QObject* parent = nullptr);
    ~ImageCanvas() override;

    /// The source of colours: it must outlive the canvas or be replaced. Null selects a palette of
    /// two colours. Setting it changes no pixel.
    ImagePalette* palette() const;
    void setPalette(ImagePalette* palette);

    /// Owned by the canvas.
    ImageSelection* selection() const;
    ImageLayers* layers() const;
    ImageUndoStack* undoStack() const;

    /// The layer being edited; null or one of `layers()`. When it is removed, the layer beneath it
    /// becomes active, or else the one above.
    ImageLayer* activeLayer() const;
    void setActiveLayer(ImageLayer* layer);

    /// The position on the screen, as a renderer interprets it.
    QPoint position() const;
    void setPosition(const QPoint& position);

    QSize size() const;

    /// Sets the size; `position` is the new place of the old image's top left corner. New area is
    /// filled with the palette's background. Afterwards everything is selected. One step,
    /// "setSize"; without `record` the layers stay as they are. Refused if a side is outside 1 to
    /// `MaxSide`, or if memory is short.
    bool setSize(const QSize& size, const QPoint& position, bool record);

    Format format() const;

    /// Changes the pixel format. With `record` the layers are converted, each colour to its
    /// `ImagePalette::index()`, and all of it is one step, "setFormat".
    bool setFormat(Format format, bool record);

    /// Like `setFormat()` with `record`, but transparent pixels become transparent and no others
    /// do, as far as the palette has entries for it.
    bool convertTo(Format format);

    double zoomLevel() const;

    /// Sets the zoom, raised so that the smaller side shows with at least 50 pixels, otherwise
    /// limited to 10. Ignored on an empty canvas, and if `zoom` is not finite.
    void setZoomLevel(double zoom);

    /// The axis (hot spot), in pixels from the top left corner. It is a corner between pixels, not
    /// a pixel. Whatever moves the pixels moves it in the same step. Setting it records no step.
    QPoint axis() const;
    void setAxis(const QPoint& axis);

    /// Moves the axis as a step, "axis". A `mergeId` other than 0 merges it with the last step if
    /// that was an axis move with the same number. False without layers.
    bool moveAxis(const QPoint& axis, int mergeId = 0);

    /// Flattens all visible layers into one image with the size and format of the canvas. An
    /// indexed one has the palette as its colour table. `name` receives the name of the lowest
    /// visible layer.
    ///
    /// In true colour, layers are drawn with their blend mode and opacity. An indexed canvas
    /// ignores both: a half transparent colour is averaged with what is beneath, and the result
    /// becomes the nearest entry. A pixel decided by a single entry keeps its index; an empty one
    /// gets the first transparent entry, or else 0. A single visible layer is copied byte for byte;
    /// in true colour only with blend mode 0 and opacity 1.
    QImage mergeLayers(QString* name) const;

    /// The part of that image within a rectangle, clipped to the canvas.
    QImage mergePart(const QRect& part) const;

    /// Mirrors all layers. One step, "flip".
    bool flip(bool horizontal, bool vertical);

    /// Turns the active layer clockwise by `angle` degrees. The canvas takes that layer's new
    /// size; with other layers it only grows to hold it. One step, "rotate".
    bool rotate(float angle, ImageResizeFilter filter);

    /// Turns all layers. One step, "rotate".
    bool rotateAll(float angle, ImageResizeFilter filter);

    /// Scales all layers. One step, "resize". Refused like `setSize()`.
    bool resize(const QSize& size, ImageResizeFilter filter);

    /// Crops the canvas to the visible content of its layers. One step, "crop"; no step if there is
    /// nothing to cut. Refused if nothing is visible.
    bool crop();

    /// Replaces each index by the entry of `to` nearest to its colour in `from`. One step,
    /// "changePalette". False for a true-colour canvas.
    bool changePalette(const RGBA (&from)[256], const RGBA (&to)[256]);

    /// Takes out the whole content with its history, and leaves the canvas without layers.
    std::unique_ptr<CanvasContent> takeContent();

    /// Puts content back as it was; the present content is deleted. Only for content taken from
    /// this canvas.
    void putContent(std::unique_ptr<CanvasContent> content);

    /// The painter for this format, on the active layer. Owned by the canvas; valid until the
    /// format or the palette changes.
    ImagePainter* painter();

    /// A painter for another format or palette. Owned by the caller.
    ImagePainter* painter(Format format, ImagePalette* palette);

    /// Adds a layer on top, as a step. `image` is placed at the top left corner and converted to
    /// the canvas's format; a null image makes an empty layer. Null if refused.
    ImageLayer* newRasterLayer(const QImage& image);

    /// Selects the pixels above 0 in the mask, as a step, "select". False if it has another size
    /// than the canvas or is not `Format_Indexed8`.
    bool setSelection(const QImage& mask);

    /// Begins a `WholeStroke` on a layer.
    void changing(ImageLayer* layer);

    /// Begins a change of pixels of a layer, or, for null, of the selection mask. `endStroke()`
    /// makes it a step if a byte has changed. Any other operation on the canvas, undo, and another
    /// stroke end it first. A `mergeId` other than 0 merges it with the last step if that was on
    /// the same layer with the same number.
    void beginStroke(ImageLayer* layer, StrokeKind kind, const QString& title, int mergeId = 0);

    /// Announces that the stroke will write within a rectangle. False if the stroke has ended:
    /// nothing may be written then.
    bool willChange(const QRect& rect);

    /// Reports that the stroke has written there.
    void changed(const QRect& rect);

    void endStroke();
    bool isStroking() const;

signals:
    void positionChanged();
    void sizeChanged();
    void formatChanged();
    void zoomChanged();

    /// The look of the layers has changed in some way.
    void layerChanged();

    /// Emitted before every other signal, with the rectangle in which the canvas may look
    /// different. `layer` is null if several layers or their order changed.
    void partChanged(Zorv::ImageLayer* layer, const QRect& rect);

    /// The selection mask has changed within a rectangle.
    void selectionChanged(const QRect& rect);

    void activeLayerChanged(Zorv::ImageLayer* layer);
    void axisChanged();

    /// A stroke was ended, whatever ended it. A tool that paints stops now.
    void strokeEnded();

    /// Something a user asked for is impossible; `message` says why.
    void refused(const QString& message);

private:
    friend class ImageCanvasPrivate;
    std::unique_ptr<ImageCanvasPrivate> d;
};

}  // namespace Zorv
