#include "editors/framework/toolbuttoncontrol.h"

namespace Zorv {

ToolButtonControl::ToolButtonControl(QAction* action, int position)
    : m_action(action), m_position(position)
{
}

std::unique_ptr<Control> ToolButtonControl::clone() const
{
    return std::make_unique<ToolButtonControl>(*this);
}

MenuToolButtonControl::MenuToolButtonControl(QAction* action, QMenu* menu, int position)
    : ToolButtonControl(action, position), m_menu(menu)
{
}

std::unique_ptr<Control> MenuToolButtonControl::clone() const
{
    return std::make_unique<MenuToolButtonControl>(*this);
}

}  // namespace Zorv
