#include "app/look/lookstyle.h"

#include "app/look/icon.h"

#include <QPainter>
#include <QStyleOption>

namespace App {

namespace {

constexpr int IconSize = 16;  // logical pixels; twice as many on a screen at 2x
constexpr int OutlineAlpha = 128;

// Fusion draws the outline of an empty check box darker than the background, which is invisible in
// the dark theme.
void drawOutline(const QStyleOption* option, QPainter* painter)
{
    QColor colour = option->palette.color(QPalette::WindowText);
    colour.setAlpha(OutlineAlpha);
    painter->save();
    painter->setPen(colour);
    painter->setBrush(Qt::NoBrush);
    painter->drawRect(QRectF(option->rect).adjusted(0.5, 0.5, -0.5, -0.5));
    painter->restore();
}

}  // namespace

LookStyle::LookStyle() : QProxyStyle(QStringLiteral("Fusion")) {}

int LookStyle::pixelMetric(PixelMetric metric, const QStyleOption* option,
                           const QWidget* widget) const
{
    switch (metric) {
    case PM_ToolBarIconSize:
    case PM_ListViewIconSize:
    case PM_SmallIconSize:
    case PM_ButtonIconSize:
    case PM_TabBarIconSize:
        return IconSize;
    default:
        return QProxyStyle::pixelMetric(metric, option, widget);
    }
}

int LookStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                         QStyleHintReturn* returned) const
{
    return hint == SH_DialogButtonBox_ButtonsHaveIcons
               ? 0
               : QProxyStyle::styleHint(hint, option, widget, returned);
}

void LookStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                              QPainter* painter, const QWidget* widget) const
{
    if (element != PE_IndicatorTabClose) {
        QProxyStyle::drawPrimitive(element, option, painter, widget);
        if (element == PE_IndicatorCheckBox) {
            drawOutline(option, painter);
        }
        return;
    }
    if (option->state & State_Raised) {
        QStyleOption ground = *option;
        QProxyStyle::drawPrimitive(PE_PanelButtonTool, &ground, painter, widget);
    }
    const bool isUsed = option->state & (State_Raised | State_Selected | State_Sunken);
    icon(QStringLiteral(":/icons/icons/close_tab.png"))
        .paint(painter, option->rect, Qt::AlignCenter, isUsed ? QIcon::Normal : QIcon::Disabled);
}

}  // namespace App
