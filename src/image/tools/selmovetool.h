#pragma once

#include "image/tools/imagetool.h"

#include <memory>

namespace Zorv {

class MovedPiece;

/// Moves the selected pixels of the active layer, with the mouse or by the arrows. The background
/// is left where they were; pixels that are not selected stay as they are. The selection stays.
///
/// The pixels can be moved on, over others and back, as long as nothing else changes layer, mask or
/// palette: then what is selected by then is lifted off anew. A drag is one step of undo; arrows
/// that follow each other are one together.
class ZORV_EXPORT SelMoveTool : public ImageTool
{
    Q_OBJECT

public:
    explicit SelMoveTool(ImageCanvas* canvas, QObject* parent = nullptr);
    ~SelMoveTool() override;

    void deactivated() override;
    void activeLayerChanged() override;
    bool keyPressed(Qt::KeyboardModifiers modifiers, int key) override;
    void mousePressed(Qt::KeyboardModifiers modifiers, Qt::MouseButton button, QPoint screen,
                      QPoint image, QCursor& cursor) override;
    void mouseReleased(Qt::KeyboardModifiers modifiers, Qt::MouseButton button, QPoint screen,
                       QPoint image, QCursor& cursor) override;
    void mouseMoved(Qt::KeyboardModifiers modifiers, QPoint screen, QPoint image,
                    QCursor& cursor) override;
    void mouseLost() override;

private:
    void beginMove(int mergeId);
    void endMove();
    void moved(const QPoint& offset);
    QPoint dragged(QPoint screen, QPoint image) const;

    std::unique_ptr<MovedPiece> m_piece;
    QPoint m_offset;  ///< where the piece stood when the act began
    QPoint m_shown;   ///< and where it stands
    QPoint m_pressPixel;
    bool m_isMoving = false;
};

}  // namespace Zorv
