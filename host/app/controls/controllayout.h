#pragma once

#include "app/actions/actiontext.h"

#include <QString>
#include <QVector>

namespace App {

/// A tool bar or side panel that holds published tools: a row of the table.
struct BarRow
{
    /// A part of the window shows a page itself: a bar above the stage, the content of a menu.
    enum Kind { ToolBar, Panel, Page };

    const char* name;  ///< object name; the switch is "show_" + name
    Kind kind;
    int area;           ///< Qt::ToolBarArea or Qt::DockWidgetArea; 0 for a page
    const char* menu;   ///< shown and hidden with this menu and
    const char* group;  ///< group in `setMenuEnabled()`; null: independent of it
    ActionText title;
    const char* setting = nullptr;  ///< setting that shows it, if editors read that too
    int fewest = 1;                 ///< fewest tools to show it: one selector offers no choice
    const char* only = nullptr;     ///< only shown while this area is active; null for all
    const char* without = nullptr;  ///< not shown while this area is active; null for none
    bool isLow = false;             ///< a panel that is no higher than it needs to be
};

/// The place of tools whose names begin with a prefix: a row of the table.
struct PlaceRow
{
    const char* prefix;
    const char* bar;   ///< of `BarRow`
    const char* menu;  ///< menu of its actions, as in "anim.list"; without a section: its end
    const char* area;  ///< area where the widgets among them are enabled
};

/// Tools side by side in a panel or on a page: a row of the table.
struct FormRow
{
    const char* bar;
    QVector<const char*> names;
};

/// In display order.
const QVector<BarRow>& barTable();

/// The place with the longest matching prefix. A tool with an unknown prefix (the part before the
/// first "_") gets a place with no bar, in the menu "edit", for all areas.
PlaceRow placeOf(const QString& name);

/// The prefix of a tool's name, or the whole name if there is no "_". Names the bar of a tool that
/// has no place.
QString prefixOf(const QString& name);

/// The default shortcut of a tool in Qt's portable form; null for none.
const char* firstKeyOf(const QString& name);

/// The order of the tools in a tool bar, by name, whoever adds them; null is a separator. Tools not
/// listed come last. Empty for a bar that has no fixed order.
const QVector<const char*>& orderOf(const QString& bar);

/// The rows of panels and pages, in display order. A tool in none of its bar's rows gets a row of
/// its own after them.
const QVector<FormRow>& formTable();

}  // namespace App
