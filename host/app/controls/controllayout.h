#pragma once

#include "app/actions/actiontext.h"

#include <QString>
#include <QVector>

namespace App {

/// A tool bar, or a panel at a side, that takes published tools: a row of the table.
struct BarRow
{
    enum Kind { ToolBar, Panel };

    const char* name;  ///< object name, and of the switch "show_" + name
    Kind kind;
    int area;           ///< Qt::ToolBarArea or Qt::DockWidgetArea
    const char* menu;   ///< it is shown and hidden with this menu and
    const char* group;  ///< group of `setMenuEnabled()`; null for never
    ActionText title;
    const char* setting = nullptr;  ///< the setting that shows it, if editors read that too
    int fewest = 1;                 ///< tools that it is shown for: one selector is no choice
};

/// Where tools whose names begin with a prefix stand: a row of the table.
struct PlaceRow
{
    const char* prefix;
    const char* bar;   ///< of `BarRow`
    const char* menu;  ///< of the actions among them
    const char* area;  ///< where the widgets among them are enabled
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

/// The tools of the main tool bar, by name; null is a separator.
const QVector<const char*>& mainBarTable();

}  // namespace App
