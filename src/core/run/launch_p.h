#pragma once

#include <QString>
#include <QStringList>

namespace Zorv {

/// What is started so that an executable runs.
struct Launch
{
    QString program;  ///< empty if nothing here can run the executable
    QStringList arguments;
    QString folder;  ///< the working folder: that of the executable
};

/// Engines are Windows programs first of all: an installed Wine application runs
/// whatever it is given. Without one a program of this system is started
/// directly, and all else by the `wine` of the search path.
Launch launchOf(const QString& executable, const QStringList& arguments);

/// True if the first bytes of a file are those of a program or a script of this
/// kind of system, whatever its name.
bool isNativeExecutable(const QString& path);

}  // namespace Zorv
