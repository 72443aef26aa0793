#pragma once

#include "app/actions/actionrow.h"

#include <QHash>
#include <QObject>

class QAction;
class QMainWindow;
class QMenu;

namespace App {

class ActionRegistry;

/// The menus of the window, and the actions that its parts put into them.
class WindowActions : public QObject
{
    Q_OBJECT

public:
    /// Lives as a child of the window.
    explicit WindowActions(QMainWindow* window);

    /// Every action of the program.
    ActionRegistry* registry() const { return m_registry; }

    /// Makes actions, in the order of the menus, and in a section in that of the rows. What the
    /// rows call must live as long as the window.
    void add(QVector<ActionRow> rows);

    /// Puts an action at the end of a section of a menu, as in "file.save", or of the menu.
    void place(QAction* action, const char* place);

    /// A menu of the menu bar by its short name; null for an unknown name.
    QMenu* menu(const char* name) const;

    /// Shows or hides a menu.
    void showMenu(const char* name, bool isShown);

    /// Puts the switch of a panel or a bar into the menu "view".
    void addSwitch(QAction* action, const QString& name);

    /// Asks all conditions again.
    void update();

    /// All texts again, in the present language.
    void retranslate();

private:
    struct Condition
    {
        QString name;  ///< of an action
        std::function<bool()> isMet;
    };

    void makeMenu(const MenuRow& row);

    QMainWindow* m_window;
    ActionRegistry* m_registry;
    QHash<QByteArray, QMenu*> m_menus;
    QVector<QByteArray> m_places;            ///< all sections, as in "file.save"
    QHash<QByteArray, QAction*> m_sections;  ///< the line behind each
    QVector<Condition> m_conditions;
};

}  // namespace App
