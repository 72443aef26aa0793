#include "app/assets/chequer.h"

#include "app/look/theme.h"

#include <QBrush>
#include <QPainter>
#include <QPixmap>

namespace App {

namespace {

constexpr int Side = 6;

}  // namespace

void drawChequer(QPainter* painter, const QRectF& rect)
{
    const bool isDark = Theme::current() == Theme::Dark;
    const QColor even(isDark ? 0x60 : 0xb8, isDark ? 0x60 : 0xb8, isDark ? 0x60 : 0xb8);
    const QColor odd = isDark ? even.darker(120) : even.lighter(115);
    QPixmap tile(2 * Side, 2 * Side);
    tile.fill(even);
    QPainter squares(&tile);
    squares.fillRect(Side, 0, Side, Side, odd);
    squares.fillRect(0, Side, Side, Side, odd);
    squares.end();
    painter->drawTiledPixmap(rect, tile);
}

}  // namespace App
