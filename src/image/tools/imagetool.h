#pragma once

#include "zorv_export.h"

#include <QObject>
#include <QPoint>
#include <QPointer>

class QColor;
class QCursor;
class QPainter;
class QRect;
class QSize;
class QWidget;

namespace Zorv {

class ImageCanvas;
class ImageLayer;

/// Turns mouse and keyboard input of a canvas view into changes of the canvas.
///
/// A view reports the mouse in two ways: `screen`, in pixels of the widget, and `image`, the canvas
/// pixel under it (rounded down), which may be outside the canvas. Only one press counts at a time:
/// it begins with the first button and ends with the last. Tools change nothing on a hidden layer,
/// or without a layer.
///
/// The canvas must outlive the use of the tool. Main thread only.
class ZORV_EXPORT ImageTool : public QObject
{
    Q_OBJECT

public:
    /// The tools in the order of the user interface.
    enum Type {
        CanvasMoveTool,
        SelMoveTool,
        RectSelTool,
        PenSelTool,
        PickerTool,
        PenTool,
        EraserTool,
        ReplaceTool,
        FloodFillTool
    };

    /// The tool becomes the current one, or stops being it. Deactivating ends what was begun.
    virtual void activated();
    virtual void deactivated();

    /// The canvas has another active layer, another size, or shows another image.
    virtual void activeLayerChanged();

    /// Returns true if the tool used the key.
    virtual bool keyPressed(Qt::KeyboardModifiers modifiers, int key);

    /// A tool may change the cursor of the view.
    virtual void mousePressed(Qt::KeyboardModifiers modifiers, Qt::MouseButton button,
                              QPoint screen, QPoint image, QCursor& cursor);
    virtual void mouseReleased(Qt::KeyboardModifiers modifiers, Qt::MouseButton button,
                               QPoint screen, QPoint image, QCursor& cursor);
    virtual void mouseMoved(Qt::KeyboardModifiers modifiers, QPoint screen, QPoint image,
                            QCursor& cursor);

    /// Draws the tool's marker for the mouse at `pos` of the widget. A canvas pixel is `zoom`
    /// widget pixels wide.
    virtual void renderCursor(QPainter& painter, QPoint pos, double zoom);

    /// The user clicked a colour of the palette. Returns true if the tool used the click.
    virtual bool colorClicked(bool isRightButton, unsigned char index);

    /// The press ends without a release, because the focus or the mouse grab is gone. What was done
    /// so far stays.
    virtual void mouseLost();

    /// The mouse has left the view. Does not affect a press.
    virtual void mouseLeft();

    /// The side of the brush square, in canvas pixels; its top left corner is at `image`. A view
    /// uses it to pass a point that centres the square on the mouse.
    virtual int brushWidth() const;

    /// The widget with the tool's options. Deleted with the tool, or with its parent.
    QWidget* widget() const;

    bool isPressed() const;

signals:
    /// The canvas looks different, or would look different with the new options.
    void layerChanged();

protected:
    /// Takes over `widget` as the options; null creates an empty one.
    ImageTool(ImageCanvas* canvas, QWidget* widget, QObject* parent);
    ~ImageTool() override;

    /// Replaces the options widget without deleting the old one: the new one may contain it.
    void setWidget(QWidget* widget);

    ImageCanvas* canvas() const;

    /// The active layer if it is visible, so that it can be painted on; otherwise null.
    ImageLayer* paintedLayer() const;

    /// Every tool calls these on a press and a release. They return whether a press begins or ends.
    bool beginPress(Qt::MouseButton button, QPoint screen, QPoint image);
    bool endPress(Qt::MouseButton button);

    /// Where the press began, in the widget, and the most recent canvas pixel.
    QPoint pressPos() const;
    QPoint lastPos() const;
    void setLastPos(QPoint image);

    /// Sets a solid brush and no pen.
    static void setColor(QPainter& painter, const QColor& color);

    /// Lines one widget pixel wide at any zoom: from a point along the longer side of `size`, and
    /// the frame of a rectangle.
    static void drawPlainLine(QPainter& painter, const QPoint& from, const QSize& size);
    static void drawPlainRect(QPainter& painter, const QRect& rect);

private:
    QPointer<QWidget> m_widget;
    QPointer<ImageCanvas> m_canvas;
    Qt::MouseButtons m_buttons;
    QPoint m_pressPos;
    QPoint m_lastPos;
};

}  // namespace Zorv
