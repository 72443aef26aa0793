#pragma once

#include <QObject>

class QKeyEvent;
class QMainWindow;

namespace App {

class ActionRegistry;

/// Keeps shortcuts from acting while the user types in a field.
///
/// In a field of a dialog or a panel no shortcut works, except those that leave the panel: the key
/// goes to the field. The text in the middle of the window keeps only the keys that write in it or
/// move its cursor.
class ShortcutGuard : public QObject
{
    Q_OBJECT

public:
    /// A child of the window. Filters all events of the application.
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
