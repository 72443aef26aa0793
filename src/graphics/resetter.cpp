#include "graphics/resetter.h"

namespace Zorv {

Resetter::Resetter()
{
    connect(this, &Resetter::resetOnRenderThread, this, &Resetter::reset);
}

void Resetter::reset(unsigned int) {}

}  // namespace Zorv
