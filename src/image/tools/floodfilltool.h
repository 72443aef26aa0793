#pragma once

#include "image/tools/pickertool.h"

namespace Zorv {

/// Fills an area of one colour of the active layer with the foreground when the press ends,
/// whatever the button. One step of undo if anything changed.
class ZORV_EXPORT FloodFillTool : public PickerTool
{
    Q_OBJECT

public:
    explicit FloodFillTool(ImageCanvas* canvas, QObject* parent = nullptr);

protected:
    void pick(ImagePainter* painter) override;
};

}  // namespace Zorv
