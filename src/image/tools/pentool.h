#pragma once

#include "image/tools/basepentool.h"

namespace Zorv {

/// Paints with the foreground colour, or with any button but the left with the background colour.
/// Shift and a click draw a line from where the last stroke on this layer ended.
class ZORV_EXPORT PenTool : public BasePenTool
{
    Q_OBJECT

public:
    explicit PenTool(ImageCanvas* canvas, QObject* parent = nullptr);

protected:
    void doDraw(const QPoint& point, ImagePainter* painter) override;
};

}  // namespace Zorv
