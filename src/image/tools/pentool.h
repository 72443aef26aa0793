#pragma once

#include "image/tools/basepentool.h"

namespace Zorv {

/// Paints with the foreground, with any other button than the left with the background. A click
/// with Shift draws a line from where the last stroke on this layer ended.
class ZORV_EXPORT PenTool : public BasePenTool
{
    Q_OBJECT

public:
    explicit PenTool(ImageCanvas* canvas, QObject* parent = nullptr);

protected:
    void doDraw(const QPoint& point, ImagePainter* painter) override;
};

}  // namespace Zorv
