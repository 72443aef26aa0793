#include "progresshost.h"

#include "progressline.h"

namespace Cli {

ProgressHost::ProgressHost()
{
    Family::startHost(this);
}

Zorv::ProgressReporter* ProgressHost::progress(const QString& title, int)
{
    return new ProgressLine(title);
}

}  // namespace Cli
