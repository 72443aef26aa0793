#include "image/canvas/monopalette.h"

#include <QColor>

#include <algorithm>
#include <iterator>

namespace Zorv {

namespace {

const RGBA MonoColors[] = {{0, 0, 0, 100}, {255, 255, 255, 0}};

}  // namespace

unsigned char MonoPalette::background() const
{
    return 0;
}

unsigned char MonoPalette::foreground() const
{
    return 1;
}

QRgb MonoPalette::color(unsigned char index) const
{
    const RGBA color = MonoColors[index > 0 ? 1 : 0];
    return qRgba(color.r, color.g, color.b, color.a);
}

unsigned char MonoPalette::index(const QColor& color) const
{
    return color.red() + color.green() + color.blue() > 3 * 127 ? 1 : 0;
}

void MonoPalette::setForeground(unsigned char) {}

void MonoPalette::setBackground(unsigned char) {}

PaletteObject* MonoPalette::palette() const
{
    return nullptr;
}

void MonoPalette::toRGBPal(RGBA (&colors)[256]) const
{
    colors[0] = MonoColors[0];
    std::fill(std::begin(colors) + 1, std::end(colors), MonoColors[1]);
}

}  // namespace Zorv
