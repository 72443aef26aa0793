#include "app/game/recentmenu.h"

#include "app/look/language.h"
#include "app/session/recentfolders.h"
#include "app/window/jumps.h"

#include <QDir>

namespace App {

RecentMenu::RecentMenu(Jumps* jumps, QWidget* parent) : QMenu(parent), m_jumps(jumps)
{
    setObjectName(QStringLiteral("recent"));
    connect(this, &QMenu::aboutToShow, this, &RecentMenu::fill);
    followLanguage(this, [this] {
        setTitle(tr("&Recent game folders"));
        fill();
    });
}

void RecentMenu::fill()
{
    clear();
    const QStringList folders = RecentFolders::list();
    for (const QString& folder : folders) {
        QString text = QDir::toNativeSeparators(folder);
        text.replace(QLatin1Char('&'), QLatin1String("&&"));
        addAction(text, this, [this, folder] { m_jumps->openPath(folder); });
    }
    addSeparator();
    QAction* forget = addAction(tr("&Clear the list"), this, [this] {
        RecentFolders::clear();
        fill();
    });
    forget->setEnabled(!folders.isEmpty());
}

}  // namespace App
