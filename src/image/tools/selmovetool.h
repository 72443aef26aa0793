#pragma once

#include "image/tools/imagetool.h"

#include <memory>

namespace Zorv {

class MovedPiece;

/// Moves the selected pixels of the active layer, with the mouse or the arrow keys. Their old place
/// gets the background colour; the other pixels and the selection stay as they are.
///
/// The same pixels can be moved again, over others and back, as long as nothing else changes layer,
/// mask or palette. After such a change, the pixels selected by then are lifted off. A drag is one
/// undo step; consecutive arrow keys make one together.
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
    QPoint m_offset;  ///< of the piece when the move began
    QPoint m_shown;   ///< of the piece now
    QPoint m_pressPixel;
    bool m_isMoving = false;
};

}  // namespace Zorv
