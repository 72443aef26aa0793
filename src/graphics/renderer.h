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

/// What a `RenderWidget` shows, and what its input goes to.
///
/// Derived classes draw in `render()`. Coordinates are pixels of the widget, from the top left, y
/// downward. The drawing calls do nothing while no widget is attached, and must be made while its
/// context is current. Main thread only.
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
        Grayscale = 1,  ///< the red channel in all three
        Lighter = 2,    ///< half of white added
        Darker = 3      ///< half of white taken off
    };

    Renderer();

    /// Leaves its widget, if it is attached.
    virtual ~Renderer();

    virtual void keyPressed(int key, Qt::KeyboardModifiers modifiers);
    virtual void keyReleased(int key, Qt::KeyboardModifiers modifiers);
    virtual void mousePressed(QPoint pos, Qt::MouseButton button, Qt::KeyboardModifiers modifiers);
    virtual void mouseReleased(QPoint pos, Qt::MouseButton button, Qt::KeyboardModifiers modifiers);
    virtual void mouseMoved(QPoint pos, Qt::KeyboardModifiers modifiers);

    /// In eighths of a degree; 120 is a step of a usual wheel. Of the two directions the greater.
    virtual void mouseWheel(int delta);
    virtual void sizeChanged(int width, int height);
    virtual void render(QPainter& painter) = 0;

    /// What the widget is cleared with: magenta, which shows where nothing was drawn.
    virtual QColor clearColor() const;

    /// The exact place of the pointer, in front of each call for mouse and wheel. Those for the
    /// mouse round it, which on a screen of finer pixels is another one of them.
    virtual void pointerMoved(QPointF pos);

    /// The widget has lost the focus: what is held down will not be heard of when it is let go.
    virtual void focusLost();

    /// The pointer has left the widget. A drag that is under way goes on outside of it without this
    /// call.
    virtual void mouseLeft();

    /// Buttons that were pressed will not be released: the widget was hidden or disabled, or
    /// another took the mouse.
    virtual void grabLost();

    /// Brackets a run of drawing calls between `QPainter::beginNativePainting()` and
    /// `endNativePainting()`. The first draw binds everything; the end leaves GL as `QPainter`
    /// expects it.
    void glBeginTextureDrawing();
    void glEndTextureDrawing();

    /// The state of blending, which reaches GL only when it changes.
    void glSetBlend(bool on);
    void glSetBlendEquation(BlendEquation equation);
    void glSetBlendFunction(BlendFactor source, BlendFactor destination);

    /// Draws an image as the unit square under `matrix`, which so carries place and size. `flip`
    /// has bits of `Flip`, `shader` is a `Shading`. With `mask` pixels of alpha 0 are left out;
    /// without it all pixels are opaque. An indexed image without `palette` takes the one that was
    /// bound last. Nothing for an `image` that is null, has no name or is none.
    void glDrawImage(const QMatrix4x4& matrix, Texture* image, Texture* palette, unsigned char flip,
                     float opacity, bool mask, unsigned char shader);

    /// The same in shades of a colour, which tells one picture from another of the same kind.
    /// Pixels of alpha 0 are left out.
    void glDrawTinted(const QMatrix4x4& matrix, Texture* image, Texture* palette,
                      unsigned char flip, float opacity, const QColor& tint);

    /// Draws an image side by side, as the unit square under `matrix` each. A number of `tiles`
    /// below 2 becomes as many as the widget holds at one pixel a texel; `spacing` is the gap
    /// between them in parts of the widget's size, and with one `flip` is ignored. Of more than
    /// 65,536 tiles those outside of the widget are left out, and with `spacing` those above
    /// 65,536 that are left.
    void glDrawImageTiled(QPoint tiles, QPoint spacing, const QMatrix4x4& matrix, Texture* image,
                          Texture* palette, unsigned char flip, float opacity, bool mask);

    /// Asks the attached widget to repaint.
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
