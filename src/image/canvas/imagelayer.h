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

/// One layer of a canvas: an image and how it is drawn.
///
/// Layers are reference-counted: the creator holds one reference, each further holder takes one
/// more. The last `release()` deletes the layer. A removed layer stays alive in the history.
///
/// Its image has no colour table: an index only has a meaning with the canvas's palette. Operations
/// on pixels are recorded and signalled if the layer is in a canvas. If one cannot be done it
/// returns false and changes nothing. Main thread only.
class ZORV_EXPORT ImageLayer
{
public:
    /// Made for a canvas; it need not be in its list.
    explicit ImageLayer(ImageCanvas* canvas);

    void addRef();
    void release();

    /// The canvas it was made for; null once that is deleted.
    ImageCanvas* canvas() const;

    /// The row in the canvas's list, 0 on top; -1 if it is not in the list.
    int index() const;

    bool isVisible() const;
    void setVisible(bool visible);

    /// With `record`, a setter makes a change an undo step if the layer is in a canvas.
    QString name() const;
    void setName(const QString& name, bool record);

    /// One of the modes up to `CompositionMode_Exclusion`; others are ignored.
    QPainter::CompositionMode blendMode() const;
    void setBlendMode(QPainter::CompositionMode mode, bool record);

    /// From 0 to 1, clamped; NaN is ignored. Consecutive steps become one, see
    /// `ImageUndoStack::seal()`.
    double opacity() const;
    void setOpacity(double opacity, bool record);

    /// `Format_Indexed8` or `Format_ARGB32`.
    const QImage& image() const;

    /// The image to paint into, as a stroke of the canvas.
    QImage* pixels();

    /// Replaces the image without a record; any size is accepted. An image that is neither null nor
    /// indexed becomes `Format_ARGB32`.
    void setImage(const QImage& image);

    /// A layer with the same content, for the same canvas. Owned by the caller.
    virtual ImageLayer* duplicate() const = 0;

    /// Draws the image at 0,0 with blend mode and opacity, an indexed one with the canvas's
    /// palette.
    virtual void render(QPainter& painter) const;

    /// See `ImageCanvas::changePalette()`.
    virtual bool changePalette(const RGBA (&from)[256], const RGBA (&to)[256]) = 0;

    virtual bool flip(bool horizontal, bool vertical) = 0;

    /// `fill`, here and in `resize()`, is the pixel for new area: an index or a `QRgb`.
    virtual bool rotate(float angle, unsigned int fill, ImageResizeFilter filter) = 0;
    virtual bool resize(const QSize& size, const QPoint& position, unsigned int fill) = 0;
    virtual bool resize(const QSize& size, ImageResizeFilter filter) = 0;

    /// Converts the image to another format, with the entries that `palette` finds.
    virtual bool reformat(ImageCanvas::Format format, ImagePalette* palette) = 0;

    /// The rectangle around the visible pixels; empty if there are none. Pixels of an indexed layer
    /// are visible if they are not transparent, or without a transparent entry, if they are not 0.
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
    mutable std::unique_ptr<PixelTiles> m_packed;  ///< its pixels, while only the history holds it
};

}  // namespace Zorv
