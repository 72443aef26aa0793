#pragma once

#include "app/window/command.h"
#include "app/window/part.h"

#include <QObject>
#include <QPointer>

namespace App {

struct WindowServices;

/// Leads undo, clipboard, save, find and zoom to what has the keyboard: a field that is written
/// in, a panel with its rows (`PanelPlace::commands`), else the editor in front.
///
/// What concerns a selection never goes from a panel to the editor: the person has something else
/// in mind than the selection there. The rest does, from a panel without a way of its own.
class CommandRouter : public QObject, public Part
{
    Q_OBJECT

public:
    /// Lives as a child of the window.
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
    QPointer<QWidget> m_focus;  ///< the last in the window; dialogs and menus do not count
};

}  // namespace App
