#pragma once

#include "image/canvas/commands/heldlayer_p.h"
#include "image/canvas/imageundocommand.h"

namespace Zorv {

/// A step that adds a layer to the list or removes it.
class LayerCommand : public ImageUndoCommand
{
public:
    qint64 byteSize() const override;
    qint64 pack(qint64 limit) override;

protected:
    /// `place` says whether the layer is in the list when the step is made; `row` is its row in it.
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
