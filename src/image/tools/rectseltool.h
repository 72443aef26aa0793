#pragma once

#include "image/tools/imagetool.h"

namespace Zorv {

/// Selects the rectangle from the pixel of the press to the pixel of the release, both included; a
/// click without a move selects everything. One undo step. A lost press selects nothing.
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

    /// The rectangle that a release would select, in canvas pixels, clipped to the canvas; empty
    /// without a press.
    QRect rect() const;

private:
    QPoint m_first;
    bool m_isMoved = false;
};

}  // namespace Zorv
