#pragma once

#include <QStringList>

namespace Operations {
struct MediaResult;
}

namespace Cli {

/// Prints the errors and warnings; returns the status.
int tell(const Operations::MediaResult& result);

/// Prints the error, if there is one; always returns `NotDone`.
int notDone(const QString& error);

/// Prints how to use the command; returns `WrongUsage`.
int wrongUsage(const QString& error);

}  // namespace Cli
