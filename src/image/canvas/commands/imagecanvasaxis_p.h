#pragma once

#include "image/canvas/imagecanvas.h"
#include "image/canvas/imageundocommand.h"

namespace Zorv {

/// The axis of a canvas, which it exchanges.
class ImageCanvasAxis : public ImageUndoCommand
{
public:
    ImageCanvasAxis(ImageCanvas* canvas, const QPoint& before);

    void undo() override;
    qint64 byteSize() const override;

protected:
    void doRedo() override;

private:
    ImageCanvas* m_canvas;
    QPoint m_other;
};

}  // namespace Zorv
