#include "app/windowactions.h"

#include "app/actiontable.h"
#include "app/mainwindow.h"
#include "app/recentfolders.h"

#include <QCoreApplication>
#include <QDir>
#include <QMenu>
#include <QMenuBar>

namespace App {

WindowActions::WindowActions(MainWindow* window) : QObject(window), m_window(window)
{
    for (const MenuRow& row : menuTable()) {
        QMenu* made =
            window->menuBar()->addMenu(QCoreApplication::translate("App::Menus", row.text));
        made->setObjectName(QLatin1String(row.name));
        m_menus.insert(row.name, made);
    }
    for (const ActionRow& row : actionTable()) {
        QMenu* owner = m_menus.value(row.menu);
        if (!row.name) {
            owner->addSeparator();
            continue;
        }
        QAction* made = owner->addAction(QCoreApplication::translate("App::Actions", row.text));
        made->setObjectName(QLatin1String(row.name));
        if (row.shortcut) {
            made->setShortcut(
                QKeySequence(QLatin1String(row.shortcut), QKeySequence::PortableText));
        } else if (row.standardKey != QKeySequence::UnknownKey) {
            made->setShortcuts(row.standardKey);
        }
        connect(made, &QAction::triggered, window, row.slot);
        m_actions.insert(row.name, made);
    }
    makeRecentMenu();
}

QMenu* WindowActions::menu(const char* name) const
{
    return m_menus.value(name);
}

QAction* WindowActions::action(const char* name) const
{
    return m_actions.value(name);
}

void WindowActions::update(int present)
{
    for (const ActionRow& row : actionTable()) {
        if (row.name) {
            m_actions.value(row.name)->setEnabled((row.needs & ~present) == 0);
        }
    }
}

QStringList WindowActions::keys() const
{
    QStringList lines;
    for (const ActionRow& row : actionTable()) {
        const QAction* found = row.name ? action(row.name) : nullptr;
        if (found && !found->shortcut().isEmpty()) {
            QString text = found->text().remove(QLatin1Char('&'));
            text.remove(QLatin1String("..."));
            lines.append(found->shortcut().toString(QKeySequence::NativeText) +
                         QLatin1String("   ") + text);
        }
    }
    return lines;
}

void WindowActions::makeRecentMenu()
{
    m_recentMenu = new QMenu(tr("&Recent game folders"), m_window);
    m_recentMenu->setObjectName(QStringLiteral("recent"));
    QMenu* file = menu("file");
    file->insertMenu(file->actions().at(1), m_recentMenu);
    connect(m_recentMenu, &QMenu::aboutToShow, this, &WindowActions::fillRecentMenu);
    fillRecentMenu();
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
