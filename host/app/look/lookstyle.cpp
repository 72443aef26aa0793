#include "app/look/lookstyle.h"

#include "app/look/icon.h"

#include <QStyleOption>

namespace App {

LookStyle::LookStyle() : QProxyStyle(QStringLiteral("Fusion")) {}

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
