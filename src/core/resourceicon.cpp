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
    }
    return icon;
}

}  // namespace Zorv
