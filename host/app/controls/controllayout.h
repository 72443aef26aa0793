#pragma once

#include "app/actions/actiontext.h"

#include <QString>
#include <QVector>

namespace App {

/// A tool bar, or a panel at a side, that takes published tools: a row of the table.
struct BarRow
{
    /// A page is put up by a part of the window: a bar above the stage, the content of a menu.
    enum Kind { ToolBar, Panel, Page };

    const char* name;  ///< object name, and of the switch "show_" + name
    Kind kind;
    int area;           ///< Qt::ToolBarArea or Qt::DockWidgetArea; 0 for a page
    const char* menu;   ///< it is shown and hidden with this menu and
    const char* group;  ///< group of `setMenuEnabled()`; null for never
    ActionText title;
    const char* setting = nullptr;  ///< the setting that shows it, if editors read that too
    int fewest = 1;                 ///< tools that it is shown for: one selector is no choice
    const char* only = nullptr;     ///< the area with which it is shown; null for all
    const char* without = nullptr;  ///< the area with which it is not shown; null for none
    bool isLow = false;             ///< a panel that takes no more height than it needs
};

/// Where tools whose names begin with a prefix stand: a row of the table.
struct PlaceRow
{
    const char* prefix;
    const char* bar;   ///< of `BarRow`
    const char* menu;  ///< of the actions among them, as in "anim.list"; without a section its end
    const char* area;  ///< where the widgets among them are enabled
};

/// What stands side by side in a panel or on a page: a row of the table.
struct FormRow
{
    const char* bar;
    QVector<const char*> names;
};

/// In the order in which bars are shown.
const QVector<BarRow>& barTable();

/// The place with the longest prefix that fits. A tool of an unknown prefix, which is what
/// stands before the first "_", gets a place with no bar, in the menu "edit" and all areas.
PlaceRow placeOf(const QString& name);

/// The prefix of a tool, which names the bar of one that has no place; the name if there is no "_".
QString prefixOf(const QString& name);

/// The key that a tool has at first, in the portable form; null for none.
const char* firstKeyOf(const QString& name);

/// The order of the tools of a tool bar, by name, whoever brings them; null is a line between. What
/// is not among them comes behind. Empty for a bar that takes them as they come.
const QVector<const char*>& orderOf(const QString& bar);

/// The rows of the panels and pages that have rows, in the order in which they are shown. What is
/// in none of those of its bar gets one of its own, behind them.
const QVector<FormRow>& formTable();

}  // namespace App
