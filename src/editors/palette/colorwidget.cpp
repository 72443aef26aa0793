#include "editors/palette/colorwidget.h"

#include "editors/palette/palettecell_p.h"

#include <QPainter>

namespace Zorv {

namespace {

constexpr int Height = 16;
constexpr int Width = 32;
constexpr int Square = 4;

}  // namespace

ColorWidget::ColorWidget(QWidget* parent) : QWidget(parent)
{
    setFixedHeight(Height);
}

void ColorWidget::setColor(const unsigned int& color)
{
    m_color = QColor::fromRgba(color);
    setAccessibleDescription(
        m_color.name(m_color.alpha() < 255 ? QColor::HexArgb : QColor::HexRgb));
    update();
}

void ColorWidget::setColorSight(const ColorSight& sight)
{
    if (m_sight != sight) {
        m_sight = sight;
        update();
    }
}

QSize ColorWidget::sizeHint() const
{
    return {Width, Height};
}

void ColorWidget::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    const RGBA color{quint8(m_color.red()), quint8(m_color.green()), quint8(m_color.blue()),
                     quint8(m_color.alpha())};
    CellPainter(&painter).paintWell(rect(), seenWith(m_sight, color), Square);
}

}  // namespace Zorv
