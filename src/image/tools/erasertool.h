#pragma once

#include "image/tools/basepentool.h"

namespace Zorv {

/// Paints with the background colour; with any button but the left only over the foreground colour.
class ZORV_EXPORT EraserTool : public BasePenTool
{
    Q_OBJECT

public:
    explicit EraserTool(ImageCanvas* canvas, QObject* parent = nullptr);

protected:
    void doDraw(const QPoint& point, ImagePainter* painter) override;
};

}  // namespace Zorv
