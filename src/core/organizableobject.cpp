#include "core/organizableobject.h"

namespace Zorv {

void OrganizableObject::moveTo(unsigned from, unsigned to)
{
    move(from, to);
}

}  // namespace Zorv
