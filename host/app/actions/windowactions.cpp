#include "app/actions/windowactions.h"

#include "app/actions/actionregistry.h"
#include "app/actions/actiontable.h"
#include "app/main/mainwindow.h"
#include "app/session/recentfolders.h"

#include <QCoreApplication>
#include <QDir>
#include <QMenu>
#include <QMenuBar>

// The library is a static one: nothing else brings its resources in. Qt's macro
// names a function of the global namespace.
static void loadResources()
{
    Q_INIT_RESOURCE(host_icons);
}

namespace App {

namespace {

QList<QKeySequence> defaultKeys(const ActionRow& row)
{
    if (row.shortcut) {
        return QKeySequence::listFromString(QLatin1String(row.shortcut),
                                            QKeySequence::PortableText);
    }
    return row.standardKey == QKeySequence::UnknownKey ? QList<QKeySequence>()
                                                       : QKeySequence::keyBindings(row.standardKey);
}

QString menuTitle(const MenuRow& row)
{
    return QCoreApplication::translate("App::Menus", row.text);
}

}  // namespace

WindowActions::WindowActions(MainWindow* window)
    : QObject(window), m_window(window), m_registry(new ActionRegistry(this))
{
    loadResources();
    makeMenus();
    makeActions();
    makeRecentMenu();
    retranslate();
}

void WindowActions::makeMenus()
{
    for (const MenuRow& row : menuTable()) {
        QMenu* made = m_window->menuBar()->addMenu(menuTitle(row));
        made->setObjectName(QLatin1String(row.name));
        made->setToolTipsVisible(true);
        m_menus.insert(row.name, made);
    }
}

void WindowActions::makeActions()
{
    for (const ActionRow& row : actionTable()) {
        QMenu* owner = m_menus.value(row.menu);
        if (!row.name) {
            owner->addSeparator();
            continue;
        }
        auto* made = new QAction(m_window);
        made->setCheckable(row.kind == ActionRow::Switch);
        ActionInfo info{QLatin1String(row.name), {"App::Actions", row.text}, {}, defaultKeys(row)};
        if (row.area) {
            info.areas.append(QLatin1String(row.area));
        }
        owner->addAction(made);
        m_registry->add(made, info);
        connect(made, &QAction::triggered, m_window,
                [window = m_window, slot = row.slot] { slot(*window); });
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

void WindowActions::update(int present)
{
    for (const ActionRow& row : actionTable()) {
        if (row.name) {
            m_registry->setAllowed(QLatin1String(row.name), (row.needs & ~present) == 0);
        }
    }
}

void WindowActions::retranslate()
{
    for (const MenuRow& row : menuTable()) {
        m_menus.value(row.name)->setTitle(menuTitle(row));
    }
    m_recentMenu->setTitle(tr("&Recent game folders"));
    fillRecentMenu();
    m_registry->retranslate();
}

void WindowActions::makeRecentMenu()
{
    m_recentMenu = new QMenu(m_window);
    m_recentMenu->setObjectName(QStringLiteral("recent"));
    QMenu* file = menu("file");
    file->insertMenu(file->actions().at(1), m_recentMenu);
    connect(m_recentMenu, &QMenu::aboutToShow, this, &WindowActions::fillRecentMenu);
}

void WindowActions::fillRecentMenu()
{
    m_recentMenu->clear();
    const QStringList folders = RecentFolders::list();
    for (const QString& folder : folders) {
        QString text = QDir::toNativeSeparators(folder);
        text.replace(QLatin1Char('&'), QLatin1String("&&"));
        m_recentMenu->addAction(text, m_window, [this, folder] { m_window->openPath(folder); });
    }
    m_recentMenu->addSeparator();
    QAction* clear = m_recentMenu->addAction(tr("&Clear the list"), this, [this] {
        RecentFolders::clear();
        fillRecentMenu();
    });
    clear->setEnabled(!folders.isEmpty());
}

}  // namespace App
