#pragma once

#include <QStringList>

namespace Operations {
struct MediaResult;
}

namespace Cli {

/// Says what went wrong; gives the status.
int tell(const Operations::MediaResult& result);

/// Says it, unless it is empty because that was done; gives `NotDone`.
int notDone(const QString& error);

/// Says how a command that was not used right has to be; gives `WrongUsage`.
int wrongUsage(const QString& error);

}  // namespace Cli
