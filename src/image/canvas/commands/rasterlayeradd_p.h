#pragma once

#include "image/canvas/commands/heldlayer_p.h"
#include "image/canvas/imageundocommand.h"

namespace Zorv {

/// A layer that was put on top.
class RasterLayerAdd : public ImageUndoCommand
{
public:
    RasterLayerAdd(ImageCanvas* canvas, ImageLayer* layer);

    void undo() override;
    qint64 byteSize() const override;
    qint64 pack(qint64 limit) override;

protected:
    void doRedo() override;

private:
    ImageCanvas* m_canvas;
    HeldLayer m_layer;
};

}  // namespace Zorv
