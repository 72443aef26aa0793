#pragma once

#include "image/canvas/imagecanvas.h"
#include "image/canvas/imageundocommand.h"

namespace Zorv {

/// A change of the canvas axis; undo and redo exchange old and new.
class ImageCanvasAxis : public ImageUndoCommand
{
public:
    /// Merges with the previous one if it has the same `mergeId`, unless that is 0.
    ImageCanvasAxis(ImageCanvas* canvas, const QPoint& before, int mergeId);

    void undo() override;
    qint64 byteSize() const override;
    int id() const override;
    bool mergeWith(const QUndoCommand* next) override;

protected:
    void doRedo() override;

private:
    ImageCanvas* m_canvas;
    QPoint m_other;
    int m_mergeId;
};

}  // namespace Zorv
