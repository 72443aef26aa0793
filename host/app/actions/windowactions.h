#pragma once

#include <QHash>
#include <QObject>

class QAction;
class QMenu;

namespace App {

class ActionRegistry;
class MainWindow;

/// The menus of the window and their actions, made from the tables, and the menu of
/// recent folders.
class WindowActions : public QObject
{
    Q_OBJECT

public:
    /// Lives as a child of the window.
    explicit WindowActions(MainWindow* window);

    /// Every action of the program.
    ActionRegistry* registry() const { return m_registry; }

    /// A menu of the menu bar by its short name; null for an unknown name.
    QMenu* menu(const char* name) const;

    /// Shows or hides a menu.
    void showMenu(const char* name, bool isShown);

    /// Puts the switch of a panel or a bar into the menu "view".
    void addSwitch(QAction* action, const QString& name);

    /// Allows what finds all that it needs: flags of `Need`.
    void update(int present);

    /// All texts again, in the present language.
    void retranslate();

private:
    void makeMenus();
    void makeActions();
    void makeRecentMenu();
    void fillRecentMenu();

    MainWindow* m_window;
    ActionRegistry* m_registry;
    QHash<QByteArray, QMenu*> m_menus;
    QMenu* m_recentMenu = nullptr;
};

}  // namespace App
