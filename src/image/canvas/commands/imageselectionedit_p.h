#pragma once

#include "image/canvas/imageundocommand.h"
#include "image/canvas/pixeltiles_p.h"

namespace Zorv {

class ImageCanvas;

/// A change of the selection mask at the same size. Keeps only the tiles that differ.
class ImageSelectionEdit : public ImageUndoCommand
{
public:
    ImageSelectionEdit(ImageCanvas* canvas, PixelTiles before);

    void undo() override;
    qint64 byteSize() const override;
    qint64 pack(qint64 limit) override;

protected:
    void doRedo() override;

private:
    ImageCanvas* m_canvas;
    PixelTiles m_tiles;
};

}  // namespace Zorv
