#pragma once

#include <QStringList>

namespace Zorv {

/// How many entries of an import met a name that was there already, or could not come.
struct ImportCounts
{
    int replaced = 0;
    int skipped = 0;
    int refused = 0;
};

/// Those that are not zero, a line each for the person.
QStringList importLines(const ImportCounts& counts);

}  // namespace Zorv
