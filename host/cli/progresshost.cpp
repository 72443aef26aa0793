#include "cli/progresshost.h"

#include "cli/progressline.h"

namespace Cli {

ProgressHost::ProgressHost()
{
    Operations::startHost(this);
}

Zorv::ProgressReporter* ProgressHost::progress(const QString& title, int)
{
    return new ProgressLine(title);
}

}  // namespace Cli
