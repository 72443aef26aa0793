#pragma once

#include "image/canvas/imagepainter.h"

#include <QRgb>

#include <optional>

namespace Zorv {

/// Paints into a `Format_ARGB32` image; with any other it reads 0 and writes nothing. Colours come
/// from the palette; a remap uses the nearest entry of a pixel.
class ZORV_EXPORT RGBAPainter : public ImagePainter
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

private:
    void paintRun(QRgb* row, int y, Run run);
    std::optional<QRgb> mapped(QRgb pixel) const;
};

}  // namespace Zorv
