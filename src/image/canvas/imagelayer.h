#pragma once

#include "image/canvas/imagecanvas.h"
#include "zorv_export.h"

#include <QImage>
#include <QPainter>
#include <QPointer>
#include <QString>

#include <memory>

namespace Zorv {

class PixelTiles;

/// One layer of a canvas: an image with what tells how it is drawn.
///
/// Layers are counted: who makes one holds a reference, and each further holder takes one more.
/// The last `release()` deletes it. A layer that has been removed lives on in the history.
///
/// Its image has no colour table: an index has a meaning only with the canvas's palette. Operations
/// on pixels are recorded and signalled if the layer is in a canvas, and return false, with nothing
/// changed, if that cannot be done. Main thread only.
class ZORV_EXPORT ImageLayer
{
public:
    /// Of a canvas that it need not be part of.
    explicit ImageLayer(ImageCanvas* canvas);

    void addRef();
    void release();

    /// The canvas that it was made for; null if that is gone.
    ImageCanvas* canvas() const;

    /// The row in the canvas's list, 0 on top; -1 if it is not in it.
    int index() const;

    bool isVisible() const;
    void setVisible(bool visible);

    /// Setters with `record` make a step of undo of a change, if the layer is in a canvas.
    QString name() const;
    void setName(const QString& name, bool record);

    /// One of the modes up to `CompositionMode_Exclusion`; any other is ignored.
    QPainter::CompositionMode blendMode() const;
    void setBlendMode(QPainter::CompositionMode mode, bool record);

    /// From 0 to 1, clamped; what is no number is ignored. Steps that follow each other become one,
    /// see `ImageUndoStack::seal()`.
    double opacity() const;
    void setOpacity(double opacity, bool record);

    /// `Format_Indexed8` or `Format_ARGB32`.
    const QImage& image() const;

    /// The image to paint into, as a stroke of the canvas.
    QImage* pixels();

    /// Replaces the image, without a record, whatever its size. One that is neither null nor
    /// indexed becomes `Format_ARGB32`.
    void setImage(const QImage& image);

    /// A layer with the same content, for the same canvas. The caller's.
    virtual ImageLayer* duplicate() const = 0;

    /// Draws the image at 0,0 with mode and opacity, an indexed one with the canvas's palette.
    virtual void render(QPainter& painter) const;

    /// See `ImageCanvas::changePalette()`.
    virtual bool changePalette(const RGBA (&from)[256], const RGBA (&to)[256]) = 0;

    virtual bool flip(bool horizontal, bool vertical) = 0;

    /// `fill`, here and in `resize()`, is what stands in new room: an index or a `QRgb`.
    virtual bool rotate(float angle, unsigned int fill, ImageResizeFilter filter) = 0;
    virtual bool resize(const QSize& size, const QPoint& position, unsigned int fill) = 0;
    virtual bool resize(const QSize& size, ImageResizeFilter filter) = 0;

    /// Brings the image into another form, with the entries that `palette` finds.
    virtual bool reformat(ImageCanvas::Format format, ImagePalette* palette) = 0;

    /// The rectangle around what shows; empty if nothing does. In an indexed layer it is what is
    /// not transparent in the palette, or not 0 if nothing there is.
    virtual QRect cropRect() const = 0;

protected:
    virtual ~ImageLayer();

private:
    Q_DISABLE_COPY(ImageLayer)
    friend class HeldLayer;
    friend class ImageLayersPrivate;

    void unpack() const;

    int m_refCount = 1;
    QPointer<ImageCanvas> m_canvas;
    bool m_visible = true;
    QString m_name;
    QPainter::CompositionMode m_blendMode = QPainter::CompositionMode_SourceOver;
    double m_opacity = 1.0;
    mutable QImage m_image;
    mutable std::unique_ptr<PixelTiles> m_packed;  ///< in its place, while only the history has it
};

}  // namespace Zorv
