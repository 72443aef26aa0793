#pragma once

#include <QHash>
#include <QObject>

class QAction;
class QMenu;

namespace App {

class MainWindow;

/// The menus and actions of the window, made from the tables, and the menu of
/// recent folders.
class WindowActions : public QObject
{
    Q_OBJECT

public:
    /// Lives as a child of the window.
    explicit WindowActions(MainWindow* window);

    /// Null for an unknown name.
    QMenu* menu(const char* name) const;
    QAction* action(const char* name) const;

    /// Enables what finds all that it needs: flags of `Need`.
    void update(int present);

    /// A line for each key: the key and what it does.
    QStringList keys() const;

private:
    void makeRecentMenu();
    void fillRecentMenu();

    MainWindow* m_window;
    QHash<QByteArray, QMenu*> m_menus;
    QHash<QByteArray, QAction*> m_actions;
    QMenu* m_recentMenu = nullptr;
};

}  // namespace App
