#include "code/codedoc/propertyitem.h"

namespace Zorv {

PropertyItem::~PropertyItem() = default;

}  // namespace Zorv
