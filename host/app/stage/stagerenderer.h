#pragma once

#include <zorv/graphics/stage/graphicsrenderer.h>

namespace App {

/// The stage of the window with its own keys.
///
/// Keys: + - 0 zoom, Space starts and stops playing, Page Up and Page Down step through frames,
/// Escape returns to positioning, and from there to the text.
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

    /// Zooms. The point under the pointer stays fixed, or the one that the settings choose.
    void mouseWheel(int delta) override;

    /// If the settings say so, the middle of the stage stays fixed.
    void addZoom() override;
    void subZoom() override;
    void zoomActual() override;

    /// The last pointer position, in pixels of the widget.
    QPoint pointer() const { return m_pointer; }
    void setPointer(QPoint place) { m_pointer = place; }

signals:
    void playKeyPressed();
    void frameKeyPressed(int step);

    /// `isFree`: there was no drawing or colour picking to leave.
    void escapePressed(bool isFree);

protected:
    /// Offset by a fraction of a pixel, like composed frames. At a texel boundary the choice
    /// between two pixels would be arbitrary, and a dragged picture flickers when zoomed.
    QMatrix4x4 spriteMatrix(QPoint base, QPoint offset, QSize size, float rotation) const override;

private:
    bool takeKey(int key);
    void turnAboutPointer(int delta);

    /// The point that the wheel keeps under the pointer, with sub-pixel precision. Valid while
    /// pointer and origin do not move.
    struct Held
    {
        QPoint pointer;
        QPoint origin;
        QPointF model;
    };

    QPoint m_pointer;
    Held m_held;
    int m_turned = 0;       // wheel movement of less than one step
    bool m_isHeld = false;  // left button is down
};

}  // namespace App
