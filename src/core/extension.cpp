#include "core/extension.h"

namespace Zorv {

Extension::~Extension() = default;

}  // namespace Zorv
