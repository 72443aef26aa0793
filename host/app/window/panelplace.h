#pragma once

#include "app/window/command.h"

#include <QVector>

class QWidget;

namespace App {

/// A place in the window that the panel-switching key can focus.
struct PanelPlace
{
    QWidget* field;             ///< gets the focus; null: the place does not exist
    const QWidget* area;        ///< while the focus is in here, the user is at this place
    CommandRows commands = {};  ///< commands it handles itself

    static PanelPlace of(const QWidget* panel, const CommandRows& commands = {})
    {
        return {const_cast<QWidget*>(panel), panel, commands};
    }

    /// A bar: focuses its first usable field.
    static PanelPlace inside(const QWidget* bar);
};

/// Moves the focus to the next visible place, cyclically; with a step of -1 to the previous one.
void goToPanel(const QVector<PanelPlace>& places, int step);

/// Shows the panel that contains a widget, raised above the others in its dock.
void bringForward(QWidget* content);

}  // namespace App
