#include "core/archive.h"

namespace Zorv {

Archive::~Archive() = default;

}  // namespace Zorv
