#include "graphics/stage/stageitems_p.h"

#include "graphics/stage/rounding_p.h"

namespace Zorv {

int Zoom::mode = 1;
unsigned char Zoom::table = 0;

const float s_zoomTable[2][ZoomLevels] = {
    {0.25F, 0.5F, 0.75F, 1, 1.5F, 2, 2.25F, 2.5F, 2.75F, 3, 3.5F, 4},
    {0.25F, 0.5F, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10},
};
const unsigned char s_zoomActual[2] = {3, 2};

// Warm for boxes that hit, cold for boxes that can be hit: easy to tell apart, even for someone who
// cannot see red.
QColor ContactBoxes::color[2] = {QColor(0xff, 0x4d, 0x3d), QColor(0x3d, 0x9b, 0xff)};
float ContactBoxes::opacity = 1.0F;

QRect ContactItem::rect() const
{
    // In double, like below, so no sum overflows.
    const int left = roundedInt(x);
    const int top = roundedInt(y);
    return {QPoint(left, top), QPoint(roundedInt(left - 1.0 + std::floor(width + 0.5)),
                                      roundedInt(top - 1.0 + std::floor(height + 0.5)))};
}

QRect ContactItem::normalRect() const
{
    const QRect whole = rect();
    return {QPoint(std::min(whole.left(), whole.right()), std::min(whole.top(), whole.bottom())),
            QPoint(std::max(whole.left(), whole.right()), std::max(whole.top(), whole.bottom()))};
}

void ContactItem::setRect(const QRect& rect)
{
    x = rect.left();
    y = rect.top();
    width = rect.right() + 1.0 - rect.left();
    height = rect.bottom() + 1.0 - rect.top();
}

}  // namespace Zorv
