#include "app/look/lookstyle.h"

#include "app/look/icon.h"

#include <QStyleOption>

namespace App {

namespace {

constexpr int IconSize = 16;  // twice as many pixels on a screen at 2x

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

void LookStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                              QPainter* painter, const QWidget* widget) const
{
    if (element != PE_IndicatorTabClose) {
        QProxyStyle::drawPrimitive(element, option, painter, widget);
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
