#pragma once

#include <zorv/graphics/stage/graphicsrenderer.h>

namespace App {

/// The stage of the window, which has keys of its own.
///
/// Keys: + - 0 zoom, Space plays and stops, Page up and Page down go from frame to frame, Escape
/// goes back to positioning, and from there to the text.
class StageRenderer : public Zorv::GraphicsRenderer
{
    Q_OBJECT

public:
    using GraphicsRenderer::GraphicsRenderer;

    void keyPressed(int key, Qt::KeyboardModifiers modifiers) override;
    void mousePressed(QPoint pos, Qt::MouseButton button, Qt::KeyboardModifiers modifiers) override;
    void mouseReleased(QPoint pos, Qt::MouseButton button,
                       Qt::KeyboardModifiers modifiers) override;
    void mouseMoved(QPoint pos, Qt::KeyboardModifiers modifiers) override;

    /// The place under the pointer stays there, or what the settings say.
    void mouseWheel(int delta) override;

    /// Where the settings say so, the place in the middle of the stage stays there.
    void addZoom() override;
    void subZoom() override;
    void zoomActual() override;

    /// Where the pointer was last, in pixels of the widget.
    QPoint pointer() const { return m_pointer; }
    void setPointer(QPoint place) { m_pointer = place; }

signals:
    void playKeyPressed();
    void frameKeyPressed(int step);

    /// `isFree` if there was no drawing or capturing to be left.
    void escapePressed(bool isFree);

protected:
    /// A hair away, as frames are composed: else what is between two pixels of a picture would
    /// show one or the other by chance, and pictures that are zoomed would shiver in a drag.
    QMatrix4x4 spriteMatrix(QPoint base, QPoint offset, QSize size, float rotation) const override;

private:
    bool takeKey(int key);
    void turnAboutPointer(int delta);

    /// What the wheel holds under the pointer: as long as both stand still, in parts of a pixel.
    struct Held
    {
        QPoint pointer;
        QPoint origin;
        QPointF model;
    };

    QPoint m_pointer;
    Held m_held;
    int m_turned = 0;       // of the wheel, less than a step
    bool m_isHeld = false;  // by the left button
};

}  // namespace App
