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

/// Shows an `ImageCanvas` on a `RenderWidget`, with the tools that paint on it.
///
/// There are two views, shown side by side or one alone: the picture at its real size on the left,
/// zoomed on the right. The picture is drawn on a checkerboard; pixels that are not selected are
/// darker. Mouse positions are pixels of the widget; canvas pixels count from its top left corner.
///
/// Each tool decides what the left and the other buttons do. Ctrl or Space with the mouse moves the
/// picture; the wheel zooms about the pointer. A press keeps its view and its tool until the last
/// button is released, or until the focus or the mouse grab is lost.
///
/// With `CanvasAxis` a press on the middle of the cross drags the axis; each drag is one undo step.
/// Ctrl with an arrow key moves the axis by a pixel; consecutive arrows make one undo step.
///
/// Other keys go to the tool first. Arrow keys it does not use move a cell, the keyboard's cursor,
/// which is drawn. Return clicks there with the left button, Alt+Return with the right one.
/// Shift+arrow drags from there until Shift is released.
///
/// Needs a `QApplication`, but no GL: `render()` accepts any painter. Main thread only.
class ZORV_EXPORT ImageRenderer : public QObject, public GraphicsRendererBase
{
    Q_OBJECT

public:
    /// All options are off initially.
    enum Option {
        CenteredBrush = 1,  ///< wide brushes are centred on the pointer, not right and below of it
        PixelGrid = 2,      ///< draws lines between pixels from zoom 4 on
        CanvasAxis = 4,     ///< shows the canvas axis as a cross that can be dragged
        FollowOriginal = 8  ///< with both views, the original follows the part that is zoomed
    };

    /// An onion skin: a picture that shines through the canvas, such as the previous frame. It is
    /// drawn above the checkerboard and below the layers.
    struct Skin
    {
        QImage image;
        QPoint offset;         ///< of its top left corner, in canvas pixels
        double opacity = 0.5;  ///< from 0 to 1
    };

    /// Freezes the picture on the screen while it lives, so several changes show at once.
    class ZORV_EXPORT Change
    {
    public:
        explicit Change(ImageRenderer* renderer);
        ~Change();

    private:
        Q_DISABLE_COPY(Change)
        ImageRenderer* m_renderer;
    };

    /// Starts with an empty canvas. See `ImageCanvas::setPalette()` for the palette.
    explicit ImageRenderer(ImagePalette* palette = nullptr, QObject* parent = nullptr);
    ~ImageRenderer() override;

    /// @name Parts
    /// The renderer owns all of them.
    /// @{
    ImageCanvas* canvas() const;
    ImageTool* tool(ImageTool::Type type) const;

    /// Shared by the tools that paint. With symmetry on, the axes are drawn and can be dragged by a
    /// grip at their end.
    StrokeOptions* strokeOptions() const;

    /// Shows the options of the current tool; at most 26 pixels high. If it is given a parent, the
    /// parent may delete it.
    QWidget* toolPanel() const;
    /// @}

    /// Null until a tool is set.
    ImageTool* currentTool() const;

    /// Ends whatever the old tool has begun, and gives the widget the focus.
    void setCurrentTool(ImageTool::Type type);

    /// While on, the mouse moves the picture whatever the tool is. Setting a tool ends it. Holding
    /// Space has the same effect without this.
    void setPanning(bool isOn);
    bool isPanning() const;

    /// Sets the active layer of the canvas, and always notifies the current tool.
    void setActiveLayer(ImageLayer* layer);

    /// See `ImageCanvas::changePalette()`. If only the colours behind the indices change, call
    /// `layerChanged()` instead.
    void setPalette(const RGBA (&from)[256], const RGBA (&to)[256]);

    /// @name Look
    /// @{

    /// The gradient around the picture: the colours at the top and the bottom of the widget.
    void setBackground(const QColor& top, const QColor& bottom);

    void setOption(Option option, bool isOn);
    bool option(Option option) const;

    /// From lowest to highest. Initially empty.
    void setSkins(const std::vector<Skin>& skins);

    /// Calls nest: changes show when the last one has ended. `Change` does this for a scope.
    void beginChange();
    void endChange();
    /// @}

    /// @name Position and zoom
    /// The canvas stores both: the middle of the picture is drawn at `ImageCanvas::position()` of
    /// each view. Its distance from the middle of the view stays when the widget or views change.
    /// @{

    /// Chooses the views to show; with both, each has half of the width.
    void setVisibility(bool original, bool zoomed);

    void centralize() override;

    /// Doubles a zoom below 1, otherwise adds 1. Only below 8; about the middle of the view.
    void addZoom() override;

    /// Subtracts 1 from a zoom above 1, otherwise halves it. Only above 0.25.
    void subZoom() override;
    void zoomActual() override;

    /// The width of a view. With both views shown, the zoomed one starts at this x.
    int splitX() const;

    /// The rectangle of the picture, relative to the left of its view.
    QRect originalRect() const;
    QRect zoomedRect() const;

    /// Converts a widget position to a canvas point, rounded, in whichever view it is.
    QPoint mapToCanvas(QPoint pos, bool zoomed) const;

    /// The canvas pixel under a widget position; it may be outside the canvas.
    QPoint pixelAt(QPointF pos, bool zoomed) const;
    /// @}

    void keyPressed(int key, Qt::KeyboardModifiers modifiers) override;
    void keyReleased(int key, Qt::KeyboardModifiers modifiers) override;
    void mousePressed(QPoint pos, Qt::MouseButton button, Qt::KeyboardModifiers modifiers) override;
    void mouseReleased(QPoint pos, Qt::MouseButton button,
                       Qt::KeyboardModifiers modifiers) override;
    void mouseMoved(QPoint pos, Qt::KeyboardModifiers modifiers) override;

    /// Forward, a wheel step of 120 multiplies the zoom by 2, two at once by 3; backward it is
    /// divided likewise. Smaller steps add up.
    void mouseWheel(int delta) override;
    void pointerMoved(QPointF pos) override;
    void focusLost() override;
    void mouseLeft() override;
    void grabLost() override;
    void sizeChanged(int width, int height) override;
    void render(QPainter& painter) override;

public slots:
    /// Redraws the whole picture. Changes made through the canvas are noticed without this; a host
    /// calls it when colours of the palette change.
    void layerChanged();

signals:
    /// The pointer or the keyboard cell is on another canvas pixel, or has left the canvas.
    void cursorChanged(const QPoint& pixel);

    /// What is visible at that pixel, for a status bar. Also emitted when the colour changes under
    /// the same pixel. `index` is -1 in true colour and outside the canvas.
    void pos(const QPoint& pixel, int index, QRgb color);

    /// The pointer has left: a status bar has nothing to show.
    void cursorLeft();

    void panningChanged(bool isOn);

private:
    friend class ImageRendererPrivate;
    std::unique_ptr<ImageRendererPrivate> d;
};

}  // namespace Zorv
