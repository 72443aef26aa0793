#pragma once

#include "image/tools/imagetool.h"

#include <memory>

class QRect;
class QSlider;

namespace Zorv {

class BasePenToolPrivate;
class ImagePainter;
class StrokeOptions;

/// A tool that paints while the mouse is dragged, with a square of 1 to 24 pixels.
///
/// A press begins a stroke, which becomes one undo step if it changed anything. The stroke ends
/// when the last button is released, the mouse is lost, the active layer changes, or something else
/// is done to the canvas; the rest of the press then paints nothing. The keys + and - change the
/// width.
class ZORV_EXPORT BasePenTool : public ImageTool
{
    Q_OBJECT

public:
    ~BasePenTool() override;

    /// Options shared by several tools. Not owned; null for strokes without extras.
    void setStrokeOptions(StrokeOptions* options);
    StrokeOptions* strokeOptions() const;

    /// The width slider, from 1 to 24.
    QSlider* slider() const;

    void deactivated() override;
    bool keyPressed(Qt::KeyboardModifiers modifiers, int key) override;
    void mousePressed(Qt::KeyboardModifiers modifiers, Qt::MouseButton button, QPoint screen,
                      QPoint image, QCursor& cursor) override;
    void mouseReleased(Qt::KeyboardModifiers modifiers, Qt::MouseButton button, QPoint screen,
                       QPoint image, QCursor& cursor) override;
    void mouseMoved(Qt::KeyboardModifiers modifiers, QPoint screen, QPoint image,
                    QCursor& cursor) override;
    void renderCursor(QPainter& painter, QPoint pos, double zoom) override;
    void mouseLost() override;
    int brushWidth() const override;
    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    /// `title` is the fixed name of the undo step. Without `recordUndo` a stroke is not recorded,
    /// and `announce()` is not called.
    BasePenTool(ImageCanvas* canvas, bool recordUndo, const QString& title, QObject* parent);

    /// Paints up to a point of the canvas.
    virtual void draw(const QPoint& point);

    /// Chooses colours and calls `paint()`. The painter has the width of the slider.
    virtual void doDraw(const QPoint& point, ImagePainter* painter) = 0;

    /// What is painted on, and whether a stroke can begin. By default the active layer, if visible.
    virtual bool canStroke() const;
    virtual ImagePainter* strokePainter();

    /// Begins and ends the recording of a stroke.
    virtual void beginRecord();
    virtual void endRecord();

    /// Paints a line from `lastPos()`, or a point if it is there. With `Joined`, a press with
    /// Shift draws a line from the end of the last stroke on this layer.
    enum Join { Apart, Joined };
    void paint(ImagePainter* painter, const QPoint& point, Join join);

    /// The state at the press: it does not change during a stroke.
    bool isLeftButton() const;
    bool isShift() const;

    void setRecordUndo(bool isOn);
    QString title() const;

private:
    void setTexts();
    void beginStroke();
    void endStroke();
    void forgetLast();
    void drawStraight(const QPoint& point);
    bool announce(const QRect& rect);

    std::unique_ptr<BasePenToolPrivate> d;
};

}  // namespace Zorv
