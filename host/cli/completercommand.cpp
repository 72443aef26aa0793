#include "command.h"

#include "cli.h"
#include "completer/completerfile.h"
#include "output.h"

namespace Cli {

int completerCommand(const Invocation&, Output& output)
{
    output.write(QString::fromUtf8(Family::completerXml()));
    return Fine;
}

}  // namespace Cli
