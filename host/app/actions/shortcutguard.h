#pragma once

#include <QObject>

class QKeyEvent;
class QMainWindow;

namespace App {

class ActionRegistry;

/// Keeps the keys of actions out of the fields in which the person types.
///
/// In a field of a dialog or a panel no action has a key, but for those that lead out of the
/// panel: what is pressed goes into the field. In the text in the middle of the window only
/// keys that write or move there are kept from actions.
class ShortcutGuard : public QObject
{
    Q_OBJECT

public:
    /// Lives as a child of the window and looks at all events of the application.
    ShortcutGuard(QMainWindow* window, const ActionRegistry* registry);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool isForField(const QWidget* widget, const QKeyEvent& key) const;
    bool isKeyOfAction(const QKeyEvent& key) const;
    bool isWorkspaceText(const QWidget* widget) const;

    QMainWindow* m_window;
    const ActionRegistry* m_registry;
};

}  // namespace App
