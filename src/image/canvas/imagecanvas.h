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

/// The image that is edited: layers of one form, a mask of what is selected, an axis, and the
/// history.
///
/// A canvas is indexed or of true colour as a whole, and all layers in it have its size. A new one
/// is empty, of true colour, at zoom 1, without layers.
///
/// What returns false has changed nothing. If a person asked for something that cannot be, such as
/// a size of 0, `refused()` tells why. Each operation is one step of undo where its text says so.
///
/// The titles of steps are fixed names that a host translates: those that stand with the operations
/// here, "edit" for pixels, and for layers "layerName", "layerBlend", "layerOpacity", "layerAdd",
/// "layerInsert" and "layerDelete". Strokes have the title that they were begun with.
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

    /// What a stroke keeps of its target, so that it can be taken back.
    enum StrokeKind {
        WholeStroke,  ///< all of it: pixels may be written anywhere, at any time
        TiledStroke   ///< what `willChange()` announces: nothing else may be written
    };

    /// The largest width and height.
    static constexpr int MaxSide = 32767;

    /// As x of a position: in the middle. So is anything below -65535.
    static constexpr int Centered = -65536;

    /// Holds back the signals of a canvas and sends each of them once at the end.
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

    /// Where colours come from: it outlives the canvas or is replaced. With null it is a palette of
    /// two colours. No pixel changes.
    ImagePalette* palette() const;
    void setPalette(ImagePalette* palette);

    /// The canvas's own parts.
    ImageSelection* selection() const;
    ImageLayers* layers() const;
    ImageUndoStack* undoStack() const;

    /// The layer that is worked on; null or one of `layers()`. When it leaves, the one beneath it
    /// follows, else the one above.
    ImageLayer* activeLayer() const;
    void setActiveLayer(ImageLayer* layer);

    /// The place on the screen, as a renderer takes it.
    QPoint position() const;
    void setPosition(const QPoint& position);

    QSize size() const;

    /// Sets the size; `position` is where the corner of the old image comes to stand. New room
    /// takes the palette's background. All is selected then. One step, "setSize"; without `record`
    /// the layers are left as they are. Refused for sides outside 1 to `MaxSide`, and if memory
    /// is short.
    bool setSize(const QSize& size, const QPoint& position, bool record);

    Format format() const;

    /// Changes the form. With `record` the layers follow, with `ImagePalette::index()` for each
    /// colour, and all is one step, "setFormat".
    bool setFormat(Format format, bool record);

    /// The same, but transparent pixels become transparent and no others do, as far as the palette
    /// has entries for it.
    bool convertTo(Format format);

    double zoomLevel() const;

    /// Sets the zoom, so that the smaller side is shown with at least 50 pixels; else it is at
    /// most 10. Without effect on an empty canvas and for what is no finite number.
    void setZoomLevel(double zoom);

    /// The hot spot, in pixels from the top left corner; between pixels, as a corner of them is.
    /// Whatever moves the pixels moves it in the same step. Setting it records nothing.
    QPoint axis() const;
    void setAxis(const QPoint& axis);

    /// Moves it as a step, "axis". `mergeId`, if not 0, lets it join the last step, if that was one
    /// of these with the same number. False without layers.
    bool moveAxis(const QPoint& axis, int mergeId = 0);

    /// All visible layers as one image of the size and form of the canvas, an indexed one with
    /// the palette as its table. `name` takes the name of the lowest visible layer.
    ///
    /// In true colour layers are drawn with their mode and opacity. In an indexed canvas these
    /// do not count: colours that are half transparent are mixed by halves with what is beneath,
    /// and become the nearest entry. A pixel that one entry decides keeps its index, and one where
    /// nothing shows has the first transparent entry, or else 0. A single visible layer is given
    /// byte for byte, in true colour if it has mode 0 and opacity 1.
    QImage mergeLayers(QString* name) const;

    /// The part of that image within a rectangle, which is clipped.
    QImage mergePart(const QRect& part) const;

    /// Mirrors all layers. One step, "flip".
    bool flip(bool horizontal, bool vertical);

    /// Turns the active layer clockwise by degrees; the canvas takes its size, or grows to hold it
    /// if there are other layers. One step, "rotate".
    bool rotate(float angle, ImageResizeFilter filter);

    /// Turns all layers. One step, "rotate".
    bool rotateAll(float angle, ImageResizeFilter filter);

    /// Scales all layers. One step, "resize"; refused as `setSize()` is.
    bool resize(const QSize& size, ImageResizeFilter filter);

    /// Cuts the canvas to what its layers show. One step, "crop"; none if nothing is to be cut.
    /// Refused if nothing shows.
    bool crop();

    /// Gives indexed pixels the entries of `to` that are nearest to their colours in `from`. One
    /// step, "changePalette". False for a canvas of true colour.
    bool changePalette(const RGBA (&from)[256], const RGBA (&to)[256]);

    /// Takes out all that the canvas holds, with its history, and leaves it without layers.
    std::unique_ptr<CanvasContent> takeContent();

    /// Puts it back as it was, in place of what is there, which goes for good. Only for what was
    /// taken from this canvas.
    void putContent(std::unique_ptr<CanvasContent> content);

    /// The painter for this form, on the active layer. The canvas's, until form or palette change.
    ImagePainter* painter();

    /// A painter of another form or with another palette. The caller's.
    ImagePainter* painter(Format format, ImagePalette* palette);

    /// Adds a layer on top, as a step. It takes over `image` at the top left corner, in the
    /// canvas's form; a null image gives an empty layer. Null if it is refused.
    ImageLayer* newRasterLayer(const QImage& image);

    /// Selects what is above 0 in the mask, as a step, "select". False if it is not of the canvas's
    /// size or not of `Format_Indexed8`.
    bool setSelection(const QImage& mask);

    /// Begins a `WholeStroke` on a layer.
    void changing(ImageLayer* layer);

    /// Begins a change of pixels of a layer, or for null of the mask. It becomes a step when it is
    /// ended, if a byte is different then. Whatever else is done to the canvas, and undo, ends it
    /// first, and so does another stroke. `mergeId`, if not 0, lets it join the last step, if that
    /// was one on the same layer with the same number.
    void beginStroke(ImageLayer* layer, StrokeKind kind, const QString& title, int mergeId = 0);

    /// Announces that the stroke will write within a rectangle. False if there is no stroke any
    /// more: nothing may be written then.
    bool willChange(const QRect& rect);

    /// Tells that the stroke has written there.
    void changed(const QRect& rect);

    void endStroke();
    bool isStroking() const;

signals:
    void positionChanged();
    void sizeChanged();
    void formatChanged();
    void zoomChanged();

    /// Something of how the layers look has changed.
    void layerChanged();

    /// Tells what, in front of every other signal: the rectangle in which the canvas may look
    /// different. `layer` is null if it concerns more than one, or the order of the layers.
    void partChanged(Zorv::ImageLayer* layer, const QRect& rect);

    /// The mask is different within a rectangle.
    void selectionChanged(const QRect& rect);

    void activeLayerChanged(Zorv::ImageLayer* layer);
    void axisChanged();

    /// A stroke was ended, by whomever. Who paints stops.
    void strokeEnded();

    /// What a person asked for cannot be, and why.
    void refused(const QString& message);

private:
    friend class ImageCanvasPrivate;
    std::unique_ptr<ImageCanvasPrivate> d;
};

}  // namespace Zorv
