#include "app/session/recentfolders.h"

#include <zorv/core/interface.h>

#include <QDir>
#include <algorithm>

namespace App {

namespace {

const QString& key()
{
    static const QString name = QStringLiteral("recent_folders");
    return name;
}

// Without the trailing slash, so that each folder has one entry.
QString cleaned(const QString& folder)
{
    return QDir::cleanPath(QDir(folder).absolutePath());
}

}  // namespace

QStringList RecentFolders::list()
{
    QStringList folders = Zorv::Interface::instance()->option(key()).toStringList();
    folders.erase(std::remove_if(folders.begin(), folders.end(),
                                 [](const QString& folder) { return !QDir(folder).exists(); }),
                  folders.end());
    return folders;
}

void RecentFolders::add(const QString& folder)
{
    QStringList folders = list();
    folders.removeAll(cleaned(folder));
    folders.prepend(cleaned(folder));
    Zorv::Interface::instance()->setOption(key(), QStringList(folders.mid(0, MaxCount)));
}

void RecentFolders::clear()
{
    Zorv::Interface::instance()->setOption(key(), QVariant());
}

}  // namespace App
