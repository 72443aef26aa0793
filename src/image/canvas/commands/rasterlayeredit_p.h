#pragma once

#include "image/canvas/imageundocommand.h"
#include "image/canvas/layerref_p.h"
#include "image/canvas/pixeltiles_p.h"

namespace Zorv {

/// The pixels of a layer, of which it exchanges the tiles that differ, or all if the size or the
/// form is another.
class RasterLayerEdit : public ImageUndoCommand
{
public:
    RasterLayerEdit(ImageLayer* layer, PixelTiles before, int mergeId = 0);

    void undo() override;
    qint64 byteSize() const override;
    qint64 pack(qint64 limit) override;

    /// Steps of one layer with the same number, which is not 0, become one.
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
