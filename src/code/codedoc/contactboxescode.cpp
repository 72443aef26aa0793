#include "code/codedoc/contactboxescode.h"

namespace Zorv {

ContactBoxCode::~ContactBoxCode() = default;
ContactBoxesCode::~ContactBoxesCode() = default;

}  // namespace Zorv
