#pragma once

#include <QString>
#include <QStringList>

namespace Zorv {

/// The command that runs an executable.
struct Launch
{
    QString program;  ///< empty if nothing on this system can run the executable
    QStringList arguments;
    QString folder;  ///< the working folder: the one that contains the executable
};

/// Engines are mainly Windows programs. So an installed Wine application runs
/// any executable. Without one, native programs start directly and everything
/// else with the `wine` from the search path.
Launch launchOf(const QString& executable, const QStringList& arguments);

/// True if the first bytes of a file show a native program or a script of this
/// system. The name does not matter.
bool isNativeExecutable(const QString& path);

}  // namespace Zorv
