#pragma once

#include "image/canvas/imagepainter.h"

namespace Zorv {

/// Paints into a `Format_Indexed8` image; with any other it reads 0 and writes nothing.
class ZORV_EXPORT IndexPainter : public ImagePainter
{
public:
    using ImagePainter::ImagePainter;

    void setColor(unsigned char index) override;
    unsigned char color(const QPoint& point) const override;
    bool canDraw(int x, int y) const override;
    quint32 pixel(int x, int y) const override;
    void setPixel(int x, int y) override;

protected:
    void paintRuns(int top, const std::vector<Run>& runs) override;
};

}  // namespace Zorv
