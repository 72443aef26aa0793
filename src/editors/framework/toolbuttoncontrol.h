#pragma once

#include "editors/framework/control.h"

class QAction;
class QMenu;

namespace Zorv {

/// A button for an action, which provides text, icon, tool tip and enabled state.
///
/// The action must come from `Interface::createAction()`. Action and menu are not
/// owned, and must live as long as the button.
class ZORV_EXPORT ToolButtonControl : public Control
{
public:
    /// `position` is for the host's layout; the library leaves it at 0.
    explicit ToolButtonControl(QAction* action, int position = 0);

    std::unique_ptr<Control> clone() const override;

    QAction* action() const { return m_action; }
    int position() const { return m_position; }

private:
    QAction* m_action;
    int m_position;
};

/// A button for an action with a menu: a click triggers the action, the arrow opens the
/// menu.
class ZORV_EXPORT MenuToolButtonControl : public ToolButtonControl
{
public:
    MenuToolButtonControl(QAction* action, QMenu* menu, int position = 0);

    std::unique_ptr<Control> clone() const override;

    QMenu* menu() const { return m_menu; }

private:
    QMenu* m_menu;
};

}  // namespace Zorv
