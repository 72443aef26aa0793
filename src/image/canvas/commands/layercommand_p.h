#pragma once

#include "image/canvas/commands/heldlayer_p.h"
#include "image/canvas/imageundocommand.h"

namespace Zorv {

/// A step that puts a layer into the list or takes it out.
class LayerCommand : public ImageUndoCommand
{
public:
    qint64 byteSize() const override;
    qint64 pack(qint64 limit) override;

protected:
    /// `place` is where the layer is when the step is made, `row` its row when it is in the list.
    LayerCommand(const QString& title, ImageCanvas* canvas, ImageLayer* layer,
                 HeldLayer::Place place, int row);

    void putIn();
    void takeOut();

private:
    ImageCanvas* m_canvas;
    HeldLayer m_layer;
    int m_row;
};

}  // namespace Zorv
