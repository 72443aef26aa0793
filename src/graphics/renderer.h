#pragma once

#include "zorv_export.h"

#include <QColor>
#include <QOpenGLFunctions>
#include <QPoint>
#include <QPointF>

class QMatrix4x4;
class QPainter;

namespace Zorv {

class RenderWidget;
class Texture;
class TextureDrawing;

/// Draws the content of a `RenderWidget` and receives its input.
///
/// Derived classes draw in `render()`. Coordinates are pixels of the widget, from the top left, y
/// downward. The drawing functions do nothing while no widget is attached. Call them only while the
/// context of the widget is current. Main thread only.
class ZORV_EXPORT Renderer : public QOpenGLFunctions
{
public:
    enum BlendEquation { Add = 0, ReverseSubtract = 1 };
    enum BlendFactor {
        Zero = 0,
        One = 1,
        SourceColor = 2,
        DestinationColor = 3,
        SourceAlpha = 4,
        OneMinusSourceAlpha = 5
    };

    /// Bits of `flip`.
    enum Flip { FlipHorizontally = 1, FlipVertically = 2 };

    /// How the colours of an image are shown.
    enum Shading {
        Plain = 0,
        Grayscale = 1,  ///< the red channel in all three channels
        Lighter = 2,    ///< half of white added
        Darker = 3      ///< half of white subtracted
    };

    Renderer();

    /// Detaches from its widget.
    virtual ~Renderer();

    virtual void keyPressed(int key, Qt::KeyboardModifiers modifiers);
    virtual void keyReleased(int key, Qt::KeyboardModifiers modifiers);
    virtual void mousePressed(QPoint pos, Qt::MouseButton button, Qt::KeyboardModifiers modifiers);
    virtual void mouseReleased(QPoint pos, Qt::MouseButton button, Qt::KeyboardModifiers modifiers);
    virtual void mouseMoved(QPoint pos, Qt::KeyboardModifiers modifiers);

    /// `delta` is in eighths of a degree; one step of a usual wheel is 120. It is the larger of the
    /// two directions.
    virtual void mouseWheel(int delta);
    virtual void sizeChanged(int width, int height);
    virtual void render(QPainter& painter) = 0;

    /// The colour the widget is cleared with. The default is magenta, which shows places where
    /// nothing was drawn.
    virtual QColor clearColor() const;

    /// The exact position of the pointer, called before each mouse or wheel function. The mouse
    /// functions round it, and on a high-resolution screen that is a different screen pixel.
    virtual void pointerMoved(QPointF pos);

    /// The widget has lost the focus. Keys and buttons held now are released without notice.
    virtual void focusLost();

    /// The pointer has left the widget. Not called during a drag, which continues outside.
    virtual void mouseLeft();

    /// Pressed buttons will not be released, because the widget was hidden or disabled or another
    /// widget grabbed the mouse.
    virtual void grabLost();

    /// Brackets a batch of drawing calls between `QPainter::beginNativePainting()` and
    /// `endNativePainting()`. The first draw binds everything. The end restores the GL state that
    /// `QPainter` expects.
    void glBeginTextureDrawing();
    void glEndTextureDrawing();

    /// Sets the blend state. GL is called only on changes.
    void glSetBlend(bool on);
    void glSetBlendEquation(BlendEquation equation);
    void glSetBlendFunction(BlendFactor source, BlendFactor destination);

    /// Draws an image as the unit square under `matrix`, which therefore contains position and
    /// size. `flip` has bits of `Flip`, `shader` is a `Shading`. With `mask`, pixels of alpha 0 are
    /// left out; without it all pixels are opaque. An indexed image without `palette` uses the
    /// palette bound last. Does nothing if `image` is null, has no name or is not an image.
    void glDrawImage(const QMatrix4x4& matrix, Texture* image, Texture* palette, unsigned char flip,
                     float opacity, bool mask, unsigned char shader);

    /// Like `glDrawImage()`, but in shades of one colour, to tell similar pictures apart. Pixels of
    /// alpha 0 are left out.
    void glDrawTinted(const QMatrix4x4& matrix, Texture* image, Texture* palette,
                      unsigned char flip, float opacity, const QColor& tint);

    /// Draws an image as tiles, each the unit square under `matrix`. A number of `tiles` below 2 is
    /// replaced by the number that fills the widget at one pixel per texel. `spacing` is the gap
    /// between tiles in fractions of the widget's size; with a gap, `flip` is ignored. If there are
    /// more than 65,536 tiles, tiles outside of the widget are left out; with `spacing`, so are
    /// those that then still exceed 65,536.
    void glDrawImageTiled(QPoint tiles, QPoint spacing, const QMatrix4x4& matrix, Texture* image,
                          Texture* palette, unsigned char flip, float opacity, bool mask);

    /// Schedules a repaint of the attached widget.
    void update();

    /// Null until attached; the widget is not owned.
    RenderWidget* widget() const { return m_widget; }

private:
    friend class RenderWidget;

    TextureDrawing* drawing() const;
    bool letOthersSetUniforms();
    bool canDraw(const Texture* image) const;
    void drawUnit(const QMatrix4x4& matrix, const Texture& image, unsigned char flip, float opacity,
                  bool mask);
    void drawRepeated(QPoint tiles, const Texture& image, unsigned char flip,
                      const QMatrix4x4& matrix);
    void drawTiles(QPoint tiles, QPoint spacing, const QMatrix4x4& matrix);

    RenderWidget* m_widget = nullptr;
};

}  // namespace Zorv
