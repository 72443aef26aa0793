#pragma once

#include "app/window/command.h"
#include "app/window/part.h"

#include <QObject>
#include <QPointer>

namespace App {

struct WindowServices;

/// Routes undo, clipboard, save, find and zoom to whatever has the keyboard focus: a text field, a
/// panel with command rows (`PanelPlace::commands`), or else the editor in front.
///
/// Selection commands never pass from a panel to the editor: the user is not thinking of the
/// selection there. The other commands do, if the panel has no row for them.
class CommandRouter : public QObject, public Part
{
    Q_OBJECT

public:
    /// A child of the window.
    explicit CommandRouter(const WindowServices& services);

    QVector<ActionRow> actions() override;
    void updateState() override;
    void retranslate() override;

private:
    void follow(QWidget* focus);
    CommandRow rowOf(Command command) const;
    bool isAllowed(Command command) const;
    void run(Command command) const;
    void showTitle(const char* action, Command command);

    const WindowServices& m_services;
    QPointer<QWidget> m_focus;  ///< last focused widget of the window, except in dialogs and menus
};

}  // namespace App
