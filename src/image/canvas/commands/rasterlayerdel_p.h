#pragma once

#include "image/canvas/commands/heldlayer_p.h"
#include "image/canvas/imageundocommand.h"

namespace Zorv {

/// A layer that was taken out of a row.
class RasterLayerDel : public ImageUndoCommand
{
public:
    RasterLayerDel(ImageCanvas* canvas, ImageLayer* layer, int row);

    void undo() override;
    qint64 byteSize() const override;
    qint64 pack(qint64 limit) override;

protected:
    void doRedo() override;

private:
    ImageCanvas* m_canvas;
    HeldLayer m_layer;
    int m_row;
};

}  // namespace Zorv
