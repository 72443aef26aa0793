#include "cli/command.h"

#include "cli/cli.h"
#include "cli/output.h"
#include "family/completer/completerfile.h"

namespace Cli {

int completerCommand(const Invocation&, Output& output)
{
    output.write(QString::fromUtf8(Family::completerXml()));
    return Fine;
}

}  // namespace Cli
