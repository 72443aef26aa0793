#include "core/progressreporter.h"

namespace Zorv {

ProgressReporter::~ProgressReporter() = default;

}  // namespace Zorv
