#pragma once

#include "support/faultshim.h"
#include "support/testtable.h"

#include <cerrno>

/// The ways in which a file cannot be written: rows of the columns call and error.
inline void faultRows()
{
    row("a folder that is not to be written", int(FaultOpen), EACCES);
    row("a disk that is not to be written", int(FaultOpen), EROFS);
    row("a full disk", int(FaultWrite), ENOSPC);
    row("a disk with an error", int(FaultSync), EIO);
    row("full at the end", int(FaultClose), ENOSPC);
    row("a file that cannot be replaced", int(FaultRename), EACCES);
}
