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

/// Turns the mouse and the keys of a view of a canvas into changes of it.
///
/// A view tells its tool where the mouse is in two ways: `screen` in pixels of the widget, and
/// `image`, the pixel of the canvas that is under it (rounded down), which may lie outside. Only
/// one press counts at a time: it begins with the first button and ends with the last. Nothing is
/// changed on a hidden layer, or without one.
///
/// The canvas outlives the use of the tool. Main thread only.
class ZORV_EXPORT ImageTool : public QObject
{
    Q_OBJECT

public:
    /// The tools in the order in which they are offered.
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

    /// The tool becomes the one in use, or is no longer. What was begun is ended.
    virtual void activated();
    virtual void deactivated();

    /// The canvas has another active layer, another size, or shows another image.
    virtual void activeLayerChanged();

    /// True if the key was used.
    virtual bool keyPressed(Qt::KeyboardModifiers modifiers, int key);

    /// A tool may give the view another cursor.
    virtual void mousePressed(Qt::KeyboardModifiers modifiers, Qt::MouseButton button,
                              QPoint screen, QPoint image, QCursor& cursor);
    virtual void mouseReleased(Qt::KeyboardModifiers modifiers, Qt::MouseButton button,
                               QPoint screen, QPoint image, QCursor& cursor);
    virtual void mouseMoved(Qt::KeyboardModifiers modifiers, QPoint screen, QPoint image,
                            QCursor& cursor);

    /// Draws what marks the mouse at `pos` of the widget; `zoom` pixels of it are one of the
    /// canvas.
    virtual void renderCursor(QPainter& painter, QPoint pos, double zoom);

    /// A click on a colour of the palette. True if the tool has used it up.
    virtual bool colorClicked(bool isRightButton, unsigned char index);

    /// The press ends without a release: the focus or the grab of the mouse is gone. What was done
    /// until here stays.
    virtual void mouseLost();

    /// The mouse has left the view. Without effect on a press.
    virtual void mouseLeft();

    /// The side of the square that is painted, in pixels of the canvas, its top left corner at
    /// `image`. So a view can hand over a point that puts it around the mouse.
    virtual int brushWidth() const;

    /// The widget with the tool's options. It is deleted with the tool, or with its parent.
    QWidget* widget() const;

    bool isPressed() const;

signals:
    /// The canvas looks different, or would with other options.
    void layerChanged();

protected:
    /// With an empty options widget if `widget` is null; else the tool's from now on.
    ImageTool(ImageCanvas* canvas, QWidget* widget, QObject* parent);
    ~ImageTool() override;

    /// Replaces the options, which are not deleted: the new widget may have them in it.
    void setWidget(QWidget* widget);

    ImageCanvas* canvas() const;

    /// The active layer if it can be painted on, that is if it is visible; else null.
    ImageLayer* paintedLayer() const;

    /// What a press and a release do in each tool. They tell whether a press begins or ends.
    bool beginPress(Qt::MouseButton button, QPoint screen, QPoint image);
    bool endPress(Qt::MouseButton button);

    /// Where the press began, in the widget, and the pixel of the canvas that came last.
    QPoint pressPos() const;
    QPoint lastPos() const;
    void setLastPos(QPoint image);

    /// Without a pen, with a solid brush.
    static void setColor(QPainter& painter, const QColor& color);

    /// Lines of one pixel of the widget at any zoom: from a point, across the greater side of
    /// `size`, and the frame of a rectangle.
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
