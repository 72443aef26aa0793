#include "cli/results.h"

#include "cli/cli.h"
#include "cli/notedsignals.h"
#include "cli/output.h"
#include "operations/media/imageedits.h"

#include <QCoreApplication>

namespace Cli {

int tell(const Operations::MediaResult& result)
{
    for (const QString& error : result.errors) {
        complain(result.isTaken ? error + QLatin1Char(' ') +
                                      QCoreApplication::translate(
                                          "Cli", "Choose another name or place, or replace what is "
                                                 "there with '--force'.")
                                : error);
    }
    for (const QString& warning : result.warnings) {
        complain(warning);
    }
    if (result.isCanceled) {
        complain(QCoreApplication::translate("Cli", "Given up. Files that are written are whole."));
        return NotedSignals::exitStatus();
    }
    return result.errors.isEmpty() ? Fine : NotDone;
}

int notDone(const QString& error)
{
    if (!error.isEmpty()) {
        complain(error);
    }
    return NotDone;
}

int wrongUsage(const QString& error)
{
    complain(error);
    return WrongUsage;
}

}  // namespace Cli
