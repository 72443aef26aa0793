#include "app/window/commandrouter.h"

#include "app/actions/actionregistry.h"
#include "app/window/editorregistry.h"
#include "app/window/fieldcommands.h"
#include "app/window/partlist.h"
#include "app/window/windowservices.h"

#include <QApplication>

#include <algorithm>

// The actions are always the same; what they do depends on the focus. `rowOf()` asks three sources
// in turn: the focused input field, the panel around the focus, the editor in front. A selection
// command stops at the first field or panel, even if that cannot run it. The last focused widget of
// the window counts, so that opening a menu does not change the target.

namespace App {

namespace {

const CommandRow* find(const CommandRows& rows, Command command)
{
    const auto found = std::find_if(rows.begin(), rows.end(), [command](const CommandRow& row) {
        return row.command == command;
    });
    return found == rows.end() ? nullptr : &*found;
}

bool concernsSelection(Command command)
{
    return command >= Command::Cut && command <= Command::SelectAll;
}

bool isIn(const QWidget* area, const QWidget* widget)
{
    return area && (area == widget || area->isAncestorOf(widget));
}

}  // namespace

CommandRouter::CommandRouter(const WindowServices& services)
    : QObject(services.window), m_services(services)
{
    connect(qApp, &QApplication::focusChanged, this,
            [this](QWidget*, QWidget* now) { follow(now); });
}

QVector<ActionRow> CommandRouter::actions()
{
    const auto row = [this](const char* name, const char* place, const char* text,
                            const FirstKeys& keys, Command command) {
        return ActionRow{name,
                         place,
                         text,
                         keys,
                         [this, command] { run(command); },
                         [this, command] { return isAllowed(command); }};
    };
    using C = Command;
    using K = QKeySequence;
    // clang-format off
    return {
        row("save",          "file.save",      QT_TRANSLATE_NOOP("App::Actions", "&Save"),          K::Save,      C::Save),
        row("undo",          "edit.undo",      QT_TRANSLATE_NOOP("App::Actions", "&Undo"),          K::Undo,      C::Undo),
        row("redo",          "edit.undo",      QT_TRANSLATE_NOOP("App::Actions", "&Redo"),          K::Redo,      C::Redo),
        row("cut",           "edit.clipboard", QT_TRANSLATE_NOOP("App::Actions", "Cu&t"),           K::Cut,       C::Cut),
        row("copy",          "edit.clipboard", QT_TRANSLATE_NOOP("App::Actions", "&Copy"),          K::Copy,      C::Copy),
        row("paste",         "edit.clipboard", QT_TRANSLATE_NOOP("App::Actions", "&Paste"),         K::Paste,     C::Paste),
        row("delete",        "edit.clipboard", QT_TRANSLATE_NOOP("App::Actions", "&Delete"),        "Del",        C::Delete),
        row("select_all",    "edit.clipboard", QT_TRANSLATE_NOOP("App::Actions", "Select &all"),    K::SelectAll, C::SelectAll),
        row("find",          "edit.find",      QT_TRANSLATE_NOOP("App::Actions", "&Find..."),       K::Find,      C::Find),
        row("find_next",     "edit.find",      QT_TRANSLATE_NOOP("App::Actions", "Find &next"),     "F3",         C::FindNext),
        row("find_previous", "edit.find",      QT_TRANSLATE_NOOP("App::Actions", "Find pre&vious"), "Shift+F3",   C::FindPrevious),
        row("zoom_in",       "view.zoom",      QT_TRANSLATE_NOOP("App::Actions", "&Larger"),        K::ZoomIn,    C::ZoomIn),
        row("zoom_out",      "view.zoom",      QT_TRANSLATE_NOOP("App::Actions", "&Smaller"),       K::ZoomOut,   C::ZoomOut),
        row("zoom_actual",   "view.zoom",      QT_TRANSLATE_NOOP("App::Actions", "&Usual size"),    "Ctrl+0",     C::ZoomActual),
    };
    // clang-format on
}

/// Ignores the focus of menus and dialogs: commands are for the panel behind them.
void CommandRouter::follow(QWidget* focus)
{
    if (focus && focus->window() == m_services.window && focus != m_focus) {
        m_focus = focus;
        m_services.parts->updateSoon();
    }
}

CommandRow CommandRouter::rowOf(Command command) const
{
    const CommandRow nothing{command, {}};
    const QWidget* text = m_services.editors->focusTarget();
    if (m_focus && m_focus != text) {
        if (const CommandRows field = fieldCommands(m_focus); !field.isEmpty()) {
            const CommandRow* found = find(field, command);
            if (found || concernsSelection(command)) {
                return found ? *found : nothing;
            }
        }
        const QVector<PanelPlace> places = m_services.parts->places();
        const auto here =
            std::find_if(places.begin(), places.end(),
                         [this](const PanelPlace& place) { return isIn(place.area, m_focus); });
        const CommandRow* found = here == places.end() ? nullptr : find(here->commands, command);
        if (found || (here != places.end() && concernsSelection(command))) {
            return found ? *found : nothing;
        }
    }
    const CommandRows rows = m_services.editors->commands();
    const CommandRow* found = find(rows, command);
    return found ? *found : nothing;
}

bool CommandRouter::isAllowed(Command command) const
{
    const CommandRow row = rowOf(command);
    return row.run && (!row.isAllowed || row.isAllowed());
}

void CommandRouter::run(Command command) const
{
    // The state can have changed since the action was enabled.
    const CommandRow row = rowOf(command);
    if (row.run && (!row.isAllowed || row.isAllowed())) {
        row.run();
    }
}

void CommandRouter::updateState()
{
    showTitle("undo", Command::Undo);
    showTitle("redo", Command::Redo);
}

void CommandRouter::retranslate()
{
    updateState();
}

/// Shows the step in the menu: "Undo: Move box".
void CommandRouter::showTitle(const char* action, Command command)
{
    const CommandRow row = rowOf(command);
    const bool isThere = row.run && row.title && (!row.isAllowed || row.isAllowed());
    m_services.actions->setDetail(QLatin1String(action), isThere ? row.title() : QString());
}

}  // namespace App
