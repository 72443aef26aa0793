#include "core/progressreporter.h"

namespace Zorv {

ProgressReporter::~ProgressReporter() = default;

bool ProgressReporter::isCanceled() const
{
    return false;
}

}  // namespace Zorv
