#include "editors/framework/control.h"

namespace Zorv {

Control::~Control() = default;

}  // namespace Zorv
