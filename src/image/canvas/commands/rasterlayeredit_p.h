#pragma once

#include "image/canvas/imageundocommand.h"
#include "image/canvas/layerref_p.h"
#include "image/canvas/pixeltiles_p.h"

namespace Zorv {

/// A change of a layer's pixels. Keeps only the tiles that differ, or all of them if the size or
/// the format has changed.
class RasterLayerEdit : public ImageUndoCommand
{
public:
    RasterLayerEdit(ImageLayer* layer, PixelTiles before, int mergeId = 0);

    void undo() override;
    qint64 byteSize() const override;
    qint64 pack(qint64 limit) override;

    /// Merges steps on one layer that have the same merge number, unless that is 0.
    int id() const override;
    bool mergeWith(const QUndoCommand* next) override;

protected:
    void doRedo() override;

private:
    LayerRef m_layer;
    PixelTiles m_tiles;
    int m_mergeId;
};

}  // namespace Zorv
