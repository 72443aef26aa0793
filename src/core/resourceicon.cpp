#include "core/resourceicon_p.h"

#include <QCoreApplication>
#include <QHash>

namespace Zorv {

namespace {

QHash<QString, QIcon>& icons()
{
    static QHash<QString, QIcon> table;
    return table;
}

// Pixmaps must not outlive the application.
void clearIcons()
{
    icons().clear();
}

}  // namespace

QIcon resourceIcon(const QString& path)
{
    if (!QCoreApplication::instance()) {
        return QIcon(path);
    }
    if (icons().isEmpty()) {
        qAddPostRoutine(clearIcons);
    }
    QIcon& icon = icons()[path];
    if (icon.isNull()) {
        icon = QIcon(path);
        // Qt finds the "@2x" picture by itself, but not this one.
        icon.addFile(
            QString(path).insert(path.lastIndexOf(QLatin1Char('.')), QLatin1String("@1.5x")));
    }
    return icon;
}

}  // namespace Zorv
