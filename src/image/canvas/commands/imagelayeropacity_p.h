#pragma once

#include "image/canvas/imageundocommand.h"
#include "image/canvas/layerref_p.h"

namespace Zorv {

/// A change of a layer's opacity.
class ImageLayerOpacity : public ImageUndoCommand
{
public:
    ImageLayerOpacity(ImageLayer* layer, double before);

    void undo() override;
    qint64 byteSize() const override;

    /// Merges the steps of a slider on one layer.
    int id() const override;
    bool mergeWith(const QUndoCommand* next) override;

protected:
    void doRedo() override;

private:
    LayerRef m_layer;
    double m_other;
};

}  // namespace Zorv
