#pragma once

#include "image/canvas/imagecanvas.h"
#include "image/canvas/imageundocommand.h"

namespace Zorv {

/// A change of the canvas format; the layers have their own commands.
class ImageCanvasFormat : public ImageUndoCommand
{
public:
    ImageCanvasFormat(ImageCanvas* canvas, ImageCanvas::Format before);

    void undo() override;
    qint64 byteSize() const override;

protected:
    void doRedo() override;

private:
    ImageCanvas* m_canvas;
    ImageCanvas::Format m_other;
};

}  // namespace Zorv
