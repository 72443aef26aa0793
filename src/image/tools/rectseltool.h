#pragma once

#include "image/tools/imagetool.h"

namespace Zorv {

/// Selects the rectangle from the pixel of the press to that of the release, both included; a
/// click without a move selects all. One step of undo. A press that is lost selects nothing.
class ZORV_EXPORT RectSelTool : public ImageTool
{
    Q_OBJECT

public:
    explicit RectSelTool(ImageCanvas* canvas, QObject* parent = nullptr);

    void mousePressed(Qt::KeyboardModifiers modifiers, Qt::MouseButton button, QPoint screen,
                      QPoint image, QCursor& cursor) override;
    void mouseReleased(Qt::KeyboardModifiers modifiers, Qt::MouseButton button, QPoint screen,
                       QPoint image, QCursor& cursor) override;
    void mouseMoved(Qt::KeyboardModifiers modifiers, QPoint screen, QPoint image,
                    QCursor& cursor) override;
    void renderCursor(QPainter& painter, QPoint pos, double zoom) override;

    /// The rectangle that a release would select, in pixels of the canvas and clipped to it; empty
    /// without a press.
    QRect rect() const;

private:
    QPoint m_first;
    bool m_isMoved = false;
};

}  // namespace Zorv
