#pragma once

#include "image/tools/pickertool.h"

namespace Zorv {

/// Fills an area of one colour on the active layer with the foreground colour. It acts when the
/// press ends, with any button. One undo step if anything changed.
class ZORV_EXPORT FloodFillTool : public PickerTool
{
    Q_OBJECT

public:
    explicit FloodFillTool(ImageCanvas* canvas, QObject* parent = nullptr);

protected:
    void pick(ImagePainter* painter) override;
};

}  // namespace Zorv
