#pragma once

#include "image/canvas/commands/heldlayer_p.h"
#include "image/canvas/imageundocommand.h"

namespace Zorv {

/// A layer that was put at a row.
class RasterLayerInsert : public ImageUndoCommand
{
public:
    RasterLayerInsert(ImageCanvas* canvas, ImageLayer* layer, int row);

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
