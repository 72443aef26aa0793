#pragma once

#include "image/canvas/imageundocommand.h"
#include "image/canvas/layerref_p.h"

#include <QString>

namespace Zorv {

/// A change of a layer's name.
class ImageLayerName : public ImageUndoCommand
{
public:
    ImageLayerName(ImageLayer* layer, const QString& before);

    void undo() override;
    qint64 byteSize() const override;

protected:
    void doRedo() override;

private:
    LayerRef m_layer;
    QString m_other;
};

}  // namespace Zorv
