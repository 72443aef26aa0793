#pragma once

#include "image/tools/imagetool.h"

namespace Zorv {

/// Moves the picture within its view. Also works without a layer.
class ZORV_EXPORT CanvasMoveTool : public ImageTool
{
    Q_OBJECT

public:
    explicit CanvasMoveTool(ImageCanvas* canvas, QObject* parent = nullptr);

    void mousePressed(Qt::KeyboardModifiers modifiers, Qt::MouseButton button, QPoint screen,
                      QPoint image, QCursor& cursor) override;
    void mouseReleased(Qt::KeyboardModifiers modifiers, Qt::MouseButton button, QPoint screen,
                       QPoint image, QCursor& cursor) override;
    void mouseMoved(Qt::KeyboardModifiers modifiers, QPoint screen, QPoint image,
                    QCursor& cursor) override;

private:
    QPoint m_position;  ///< of the canvas, at the press
    QPoint m_shown;     ///< the position set by the last move
};

}  // namespace Zorv
