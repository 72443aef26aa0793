#include "image/canvas/alikepalette_p.h"

#include <QColor>

#include <cstdlib>
#include <limits>
#include <tuple>

// The nearest entry of a visible colour may be a transparent one, and the pixel would vanish. Then
// the nearest entry that is not transparent is searched instead.

namespace Zorv {

namespace {

int squared(int x)
{
    return x * x;
}

/// Compared by colour first, then by alpha.
std::tuple<int, int> distance(QRgb x, QRgb y)
{
    return {squared(qRed(x) - qRed(y)) + squared(qGreen(x) - qGreen(y)) +
                squared(qBlue(x) - qBlue(y)),
            std::abs(qAlpha(x) - qAlpha(y))};
}

}  // namespace

AlikePalette::AlikePalette(ImagePalette* palette) : m_palette(palette), m_colors(*palette) {}

unsigned char AlikePalette::background() const
{
    return m_palette->background();
}

unsigned char AlikePalette::foreground() const
{
    return m_palette->foreground();
}

QRgb AlikePalette::color(unsigned char index) const
{
    return m_colors[index];
}

unsigned char AlikePalette::index(const QColor& color) const
{
    if (color.alpha() == 0 && m_colors.transparent() >= 0) {
        return static_cast<unsigned char>(m_colors.transparent());
    }
    const unsigned char nearest = m_palette->index(color);
    if (qAlpha(m_colors[nearest]) != 0) {
        return nearest;
    }
    int best = nearest;
    std::tuple<int, int> least(std::numeric_limits<int>::max(), 0);
    for (int i = 0; i < 256; ++i) {
        const QRgb entry = m_colors[quint8(i)];
        const std::tuple<int, int> away = distance(entry, color.rgba());
        if (qAlpha(entry) != 0 && away < least) {
            least = away;
            best = i;
        }
    }
    return static_cast<unsigned char>(best);
}

void AlikePalette::setForeground(unsigned char) {}

void AlikePalette::setBackground(unsigned char) {}

PaletteObject* AlikePalette::palette() const
{
    return m_palette->palette();
}

void AlikePalette::toRGBPal(RGBA (&colors)[256]) const
{
    m_palette->toRGBPal(colors);
}

}  // namespace Zorv
