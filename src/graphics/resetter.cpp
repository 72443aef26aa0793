#include "graphics/resetter.h"

#include "graphics/glcontext_p.h"

namespace Zorv {

Resetter::Resetter()
{
    connect(this, &Resetter::resetOnRenderThread, this, &Resetter::reset);
}

void Resetter::reset(unsigned int id)
{
    if (id == 0) {
        return;
    }
    const ContextScope scope;
    if (scope.gl()) {
        deleteTextureName(*scope.gl(), id);
    }
}

}  // namespace Zorv
