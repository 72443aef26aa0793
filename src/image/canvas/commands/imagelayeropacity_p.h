#pragma once

#include "image/canvas/imageundocommand.h"
#include "image/canvas/layerref_p.h"

namespace Zorv {

/// The opacity of a layer, which it exchanges.
class ImageLayerOpacity : public ImageUndoCommand
{
public:
    ImageLayerOpacity(ImageLayer* layer, double before);

    void undo() override;
    qint64 byteSize() const override;

    /// Steps of a slider on one layer become one.
    int id() const override;
    bool mergeWith(const QUndoCommand* next) override;

protected:
    void doRedo() override;

private:
    LayerRef m_layer;
    double m_other;
};

}  // namespace Zorv
