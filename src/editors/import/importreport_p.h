#pragma once

#include <QStringList>

namespace Zorv {

/// Numbers of import entries that met an existing identifier or could not be imported.
struct ImportCounts
{
    int replaced = 0;
    int skipped = 0;
    int refused = 0;
};

/// One line for the user per number that is not zero.
QStringList importLines(const ImportCounts& counts);

}  // namespace Zorv
