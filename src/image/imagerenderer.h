#pragma once

#include "graphics/graphicsrendererbase.h"
#include "image/tools/imagetool.h"
#include "media/colortypes.h"
#include "zorv_export.h"

#include <QImage>
#include <QObject>
#include <QRect>

#include <memory>
#include <vector>

class QWidget;

namespace Zorv {

class ImageCanvas;
class ImageLayer;
class ImagePalette;
class ImageRendererPrivate;
class StrokeOptions;

/// A canvas on a `RenderWidget`, with the tools that paint on it.
///
/// The picture is shown in two views, at its real size on the left and zoomed on the right, or in
/// one of them alone. It lies on a checkerboard; what is not selected is darker. Places are pixels
/// of the widget, and pixels of the canvas are counted from its top left corner.
///
/// The left and any other button paint as the tool says. Ctrl or Space with the mouse moves the
/// picture, the wheel zooms about the pointer. A press that has begun stays with its view and its
/// tool until the last button is released, or the focus or the mouse is lost.
///
/// With `CanvasAxis` a press on the middle of its cross drags the axis, each drag one step of undo.
/// Ctrl with arrows moves it by a pixel; arrows that follow each other are one step.
///
/// Other keys go to the tool first. Arrows that it does not use move a cell, which is drawn; Return
/// clicks there with the left button, with Alt with the right one; Shift with arrows drags from
/// there until Shift is released.
///
/// Needs a `QApplication`, but no GL: `render()` takes any painter. Main thread only.
class ZORV_EXPORT ImageRenderer : public QObject, public GraphicsRendererBase
{
    Q_OBJECT

public:
    /// All are off at first.
    enum Option {
        CenteredBrush = 1,  ///< wide brushes are around the pointer, not right and below of it
        PixelGrid = 2,      ///< lines between pixels from a zoom of 4 on
        CanvasAxis = 4,     ///< the axis of the canvas as a cross, which is dragged
        FollowOriginal = 8  ///< beside a zoomed view, the original shows the same part
    };

    /// A picture that shines through the canvas, as of the frame before: above the checkerboard and
    /// below the layers.
    struct Skin
    {
        QImage image;
        QPoint offset;         ///< of its top left corner, in pixels of the canvas
        double opacity = 0.5;  ///< from 0 to 1
    };

    /// Keeps the picture on the screen as it is while several changes are made.
    class ZORV_EXPORT Change
    {
    public:
        explicit Change(ImageRenderer* renderer);
        ~Change();

    private:
        Q_DISABLE_COPY(Change)
        ImageRenderer* m_renderer;
    };

    /// With an empty canvas. See `ImageCanvas::setPalette()` for the palette.
    explicit ImageRenderer(ImagePalette* palette = nullptr, QObject* parent = nullptr);
    ~ImageRenderer() override;

    /// @name What it holds
    /// All of it is the renderer's own.
    /// @{
    ImageCanvas* canvas() const;
    ImageTool* tool(ImageTool::Type type) const;

    /// Shared by the tools that paint. With symmetry on, the axes are drawn, and dragged by a grip
    /// at their end.
    StrokeOptions* strokeOptions() const;

    /// Shows the options of the current tool; at most 26 pixels high. A parent that it is given may
    /// delete it.
    QWidget* toolPanel() const;
    /// @}

    /// Null until one was set.
    ImageTool* currentTool() const;

    /// Ends what the old tool has begun, and gives the widget the focus.
    void setCurrentTool(ImageTool::Type type);

    /// The mouse moves the picture, whatever the tool is, until this is ended or another tool is
    /// set. Space does the same while it is held, without this.
    void setPanning(bool isOn);
    bool isPanning() const;

    /// As on the canvas; the current tool hears of it in any case.
    void setActiveLayer(ImageLayer* layer);

    /// See `ImageCanvas::changePalette()`. For other colours of the same indices see
    /// `layerChanged()`.
    void setPalette(const RGBA (&from)[256], const RGBA (&to)[256]);

    /// @name The look
    /// @{

    /// The colours around the picture, from the top of the widget to its bottom.
    void setBackground(const QColor& top, const QColor& bottom);

    void setOption(Option option, bool isOn);
    bool option(Option option) const;

    /// From the lowest to the highest; an empty list at first.
    void setSkins(const std::vector<Skin>& skins);

    /// Calls may be nested: what has changed shows when the last of them has ended. See `Change`.
    void beginChange();
    void endChange();
    /// @}

    /// @name Place and zoom
    /// The canvas holds both: its middle stands at `ImageCanvas::position()` of each view. The
    /// distance of that from the middle of the view stays when the widget or the views change.
    /// @{

    /// Which views are shown; with both, each has half of the width.
    void setVisibility(bool original, bool zoomed);

    void centralize() override;

    /// Doubles the zoom below 1, else adds 1, below 8; about the middle of the view.
    void addZoom() override;

    /// Takes 1 off above 1, else halves the zoom, above 0.25.
    void subZoom() override;
    void zoomActual() override;

    /// The width of a view. In split view the zoomed one begins there.
    int splitX() const;

    /// Where the picture lies, from the left of its view.
    QRect originalRect() const;
    QRect zoomedRect() const;

    /// A place as a point of the canvas, rounded, for whichever view it lies in.
    QPoint mapToCanvas(QPoint pos, bool zoomed) const;

    /// The pixel of the canvas that a place lies on, which may be outside of it.
    QPoint pixelAt(QPointF pos, bool zoomed) const;
    /// @}

    void keyPressed(int key, Qt::KeyboardModifiers modifiers) override;
    void keyReleased(int key, Qt::KeyboardModifiers modifiers) override;
    void mousePressed(QPoint pos, Qt::MouseButton button, Qt::KeyboardModifiers modifiers) override;
    void mouseReleased(QPoint pos, Qt::MouseButton button,
                       Qt::KeyboardModifiers modifiers) override;
    void mouseMoved(QPoint pos, Qt::KeyboardModifiers modifiers) override;

    /// Multiplies the zoom by 2 for a step of 120 forward, by 3 for two at once, and divides it
    /// likewise. Smaller steps add up.
    void mouseWheel(int delta) override;
    void pointerMoved(QPointF pos) override;
    void focusLost() override;
    void mouseLeft() override;
    void grabLost() override;
    void sizeChanged(int width, int height) override;
    void render(QPainter& painter) override;

public slots:
    /// The whole picture looks different. What is changed through the canvas is known without it;
    /// a host calls it when colours of the palette change.
    void layerChanged();

signals:
    /// The pointer, or the cell of the keys, is on another pixel of the canvas, or beside it.
    void cursorChanged(const QPoint& pixel);

    /// What is to be seen there: for a status bar. It comes for another colour at the same place,
    /// too. `index` is -1 in true colour and beside the canvas.
    void pos(const QPoint& pixel, int index, QRgb color);

    /// The pointer has left: there is nothing to tell.
    void cursorLeft();

    void panningChanged(bool isOn);

private:
    friend class ImageRendererPrivate;
    std::unique_ptr<ImageRendererPrivate> d;
};

}  // namespace Zorv
