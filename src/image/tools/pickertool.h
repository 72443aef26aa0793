#pragma once

#include "image/tools/imagetool.h"

namespace Zorv {

class ImagePainter;

/// Picks the colour of a pixel of the active layer when the press ends: the left button sets the
/// foreground, the right one the background.
class ZORV_EXPORT PickerTool : public ImageTool
{
    Q_OBJECT

public:
    explicit PickerTool(ImageCanvas* canvas, QObject* parent = nullptr);

    void mousePressed(Qt::KeyboardModifiers modifiers, Qt::MouseButton button, QPoint screen,
                      QPoint image, QCursor& cursor) override;
    void mouseReleased(Qt::KeyboardModifiers modifiers, Qt::MouseButton button, QPoint screen,
                       QPoint image, QCursor& cursor) override;
    void mouseMoved(Qt::KeyboardModifiers modifiers, QPoint screen, QPoint image,
                    QCursor& cursor) override;
    void renderCursor(QPainter& painter, QPoint pos, double zoom) override;

protected:
    /// Picks at `lastPos()`, which is inside the image.
    virtual void pick(ImagePainter* painter);

private:
    Qt::MouseButton m_button = Qt::NoButton;  ///< the one that began the press
};

}  // namespace Zorv
