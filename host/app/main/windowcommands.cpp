#include "app/main/windowcommands.h"

#include "app/actions/actionsearch.h"
#include "app/actions/keysdialog.h"
#include "app/main/mainwindow.h"
#include "app/settings/showsettings.h"
#include "app/window/partlist.h"

#include <zorv/core/dialogs/dialogs.h>

namespace App {

WindowCommands::WindowCommands(MainWindow* window) : QObject(window), m_window(window) {}

QVector<ActionRow> WindowCommands::actions()
{
    const Members<WindowCommands> on(this);
    // clang-format off
    return {
        {"quit",           "file.quit",      QT_TRANSLATE_NOOP("App::Actions", "&Quit"),           "Ctrl+Q",                   on(&WindowCommands::quit)},
        {"next_panel",     "view.panels",    QT_TRANSLATE_NOOP("App::Actions", "&Next panel"),     "F6",                       on(&WindowCommands::focusNextPanel)},
        {"previous_panel", "view.panels",    QT_TRANSLATE_NOOP("App::Actions", "&Previous panel"), "Shift+F6",                 on(&WindowCommands::focusPreviousPanel)},
        {"search_actions", "tools.find",     QT_TRANSLATE_NOOP("App::Actions", "&Find action..."), "Ctrl+Shift+P",             on(&WindowCommands::searchActions),      {}, nullptr, ActionRow::Button, "find"},
        {"settings",       "tools.settings", QT_TRANSLATE_NOOP("App::Actions", "&Options..."),     "Ctrl+,",                   on(&WindowCommands::changeSettings)},
        {"keys",           "help.keys",      QT_TRANSLATE_NOOP("App::Actions", "&Keys..."),        QKeySequence::HelpContents, on(&WindowCommands::listKeys)},
        {"about",          "help.keys",      QT_TRANSLATE_NOOP("App::Actions", "&About Zorv"),     {},                         on(&WindowCommands::tellAbout)},
    };
    // clang-format on
}

void WindowCommands::quit()
{
    m_window->close();
}

void WindowCommands::focusNextPanel()
{
    goToPanel(m_window->services().parts->places(), 1);
}

void WindowCommands::focusPreviousPanel()
{
    goToPanel(m_window->services().parts->places(), -1);
}

void WindowCommands::searchActions()
{
    App::searchActions(m_window->registry(), m_window);
}

void WindowCommands::changeSettings()
{
    showSettings(m_window->registry(), m_window, [this] { m_window->reconfig(); });
}

void WindowCommands::listKeys()
{
    showKeys(m_window->registry(), m_window);
}

void WindowCommands::tellAbout()
{
    Zorv::Dialogs::instance()->information(
        tr("About Zorv"),
        tr("Zorv %1\n\nAn editor for people who make characters and stages for two-dimensional "
           "fighting games. The text is the only truth; trees and lists follow.\n\n"
           "Under the MIT licence. Made with Qt %2.")
            .arg(QStringLiteral(ZORV_VERSION), QLatin1String(qVersion())));
}

}  // namespace App
