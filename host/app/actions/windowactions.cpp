#include "app/actions/windowactions.h"

#include "app/actions/actionregistry.h"

#include <QCoreApplication>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>

#include <algorithm>

// The library is static, so its resources must be loaded explicitly. Q_INIT_RESOURCE only works in
// the global namespace.
static void loadResources()
{
    Q_INIT_RESOURCE(host_icons);
}

namespace App {

namespace {

QString menuTitle(const MenuRow& row)
{
    return QCoreApplication::translate("App::Menus", row.text);
}

}  // namespace

WindowActions::WindowActions(QMainWindow* window)
    : QObject(window), m_window(window), m_registry(new ActionRegistry(this))
{
    loadResources();
    for (const MenuRow& row : menuTable()) {
        makeMenu(row);
    }
}

/// Each section ends with a separator; a section marked "+" ends with an invisible one. Qt merges
/// adjacent separators and hides those at the end.
void WindowActions::makeMenu(const MenuRow& row)
{
    auto* made = new QMenu(menuTitle(row), m_window->menuBar());
    if (row.place) {
        place(made->menuAction(), row.place);
    } else {
        m_window->menuBar()->addMenu(made);
    }
    made->setObjectName(QLatin1String(row.name));
    made->setToolTipsVisible(true);
    m_menus.insert(row.name, made);
    const QList<QByteArray> sections = QByteArray(row.sections).split(' ');
    for (QByteArray section : sections) {
        QAction* end = made->addSeparator();
        if (section.endsWith('+')) {
            end->setVisible(false);
            section.chop(1);
        }
        m_places.append(QByteArray(row.name) + '.' + section);
        m_sections.insert(m_places.last(), end);
    }
}

void WindowActions::add(QVector<ActionRow> rows)
{
    std::stable_sort(rows.begin(), rows.end(), [this](const ActionRow& a, const ActionRow& b) {
        return m_places.indexOf(a.place) < m_places.indexOf(b.place);
    });
    for (const ActionRow& row : qAsConst(rows)) {
        auto* made = new QAction(m_window);
        made->setCheckable(row.kind == ActionRow::Switch);
        ActionInfo info{QLatin1String(row.name), {"App::Actions", row.text}, {}, row.keys.keys()};
        info.picture = QLatin1String(row.picture);
        if (row.area) {
            info.areas.append(QLatin1String(row.area));
        }
        place(made, row.place);
        m_registry->add(made, info);
        connect(made, &QAction::triggered, m_window, row.run);
        if (row.isAllowed) {
            m_conditions.append({info.name, row.isAllowed});
        }
    }
}

void WindowActions::place(QAction* action, const char* place)
{
    if (QAction* end = m_sections.value(place)) {
        static_cast<QMenu*>(end->parent())->insertAction(end, action);
    } else {
        m_menus.value(place)->addAction(action);
    }
}

void WindowActions::addSwitch(QAction* action, const QString& name)
{
    menu("view")->addAction(action);
    m_registry->add(action, {QLatin1String("show_") + name, {}, {}, {}});
}

QMenu* WindowActions::menu(const char* name) const
{
    return m_menus.value(name);
}

void WindowActions::showMenu(const char* name, bool isShown)
{
    if (QMenu* found = menu(name)) {
        found->menuAction()->setVisible(isShown);
    }
}

void WindowActions::update()
{
    for (const Condition& condition : qAsConst(m_conditions)) {
        m_registry->setAllowed(condition.name, condition.isMet());
    }
}

void WindowActions::retranslate()
{
    for (const MenuRow& row : menuTable()) {
        m_menus.value(row.name)->setTitle(menuTitle(row));
    }
    m_registry->retranslate();
}

}  // namespace App
