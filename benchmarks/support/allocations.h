#pragma once

#include <QtGlobal>

namespace Bench {

/// How often memory was asked for since the start, by the whole program. Needs allocations.cpp.
qint64 allocations();

}  // namespace Bench
