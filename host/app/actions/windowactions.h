#pragma once

#include "app/actions/actionrow.h"

#include <QHash>
#include <QObject>

class QAction;
class QMainWindow;
class QMenu;

namespace App {

class ActionRegistry;

/// The menus of the window, and the actions that its parts add to them.
class WindowActions : public QObject
{
    Q_OBJECT

public:
    /// A child of the window.
    explicit WindowActions(QMainWindow* window);

    /// Every action of the program.
    ActionRegistry* registry() const { return m_registry; }

    /// Makes actions, in menu order, and within a section in row order. What the rows call must
    /// live as long as the window.
    void add(QVector<ActionRow> rows);

    /// Adds an action at the end of a menu section, as in "file.save", or of the menu.
    void place(QAction* action, const char* place);

    /// A menu of the menu bar by its short name; null if unknown.
    QMenu* menu(const char* name) const;

    /// Shows or hides a menu.
    void showMenu(const char* name, bool isShown);

    /// Adds the switch of a panel or tool bar to the menu "view".
    void addSwitch(QAction* action, const QString& name);

    /// Evaluates all conditions again.
    void update();

    /// Sets all texts again in the current language.
    void retranslate();

private:
    struct Condition
    {
        QString name;  ///< the action's name
        std::function<bool()> isMet;
    };

    void makeMenu(const MenuRow& row);

    QMainWindow* m_window;
    ActionRegistry* m_registry;
    QHash<QByteArray, QMenu*> m_menus;
    QVector<QByteArray> m_places;            ///< all sections, as in "file.save"
    QHash<QByteArray, QAction*> m_sections;  ///< the separator after each section
    QVector<Condition> m_conditions;
};

}  // namespace App
