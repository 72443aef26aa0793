#pragma once

#include "app/window/command.h"

#include <QVector>

class QWidget;

namespace App {

/// A place of the window to which a key leads.
struct PanelPlace
{
    QWidget* field;             ///< takes the keyboard; null for a place that is not there
    const QWidget* area;        ///< with the keyboard in here the person is at this place
    CommandRows commands = {};  ///< what it does itself

    static PanelPlace of(const QWidget* panel, const CommandRows& commands = {})
    {
        return {const_cast<QWidget*>(panel), panel, commands};
    }

    /// A bar, by the first of its fields that can be used.
    static PanelPlace inside(const QWidget* bar);
};

/// Leads from where the keyboard is to the next of the places that are shown, round and round;
/// with a step of -1 to the one before.
void goToPanel(const QVector<PanelPlace>& places, int step);

/// Shows the panel that a widget stands in, in front of those in the same place.
void bringForward(QWidget* content);

}  // namespace App
