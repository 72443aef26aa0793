#pragma once

#include "image/canvas/imageundocommand.h"
#include "image/canvas/pixeltiles_p.h"

#include <QSize>

namespace Zorv {

class ImageCanvas;

/// A change of the canvas size and of the selection mask, which has that size.
class ImageCanvasSize : public ImageUndoCommand
{
public:
    ImageCanvasSize(ImageCanvas* canvas, const QSize& before, const QImage& maskBefore);

    void undo() override;
    qint64 byteSize() const override;
    qint64 pack(qint64 limit) override;

protected:
    void doRedo() override;

private:
    void exchange();
    void keep(const QImage& mask);

    ImageCanvas* m_canvas;
    QSize m_other;
    PixelTiles m_mask;
    bool m_allSelected = true;
};

}  // namespace Zorv
