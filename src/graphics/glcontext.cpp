#include "graphics/glcontext.h"

#include "graphics/resetter.h"

#include <QCoreApplication>
#include <QOffscreenSurface>
#include <QOpenGLContext>
#include <QOpenGLFunctions>

namespace Zorv {

bool s_hasNPOT = false;
Resetter* s_resetter = nullptr;

namespace {

QOpenGLContext* s_context = nullptr;
QOffscreenSurface* s_surface = nullptr;
bool s_isUsable = false;

}  // namespace

QOpenGLContext* context()
{
    if (!s_context) {
        s_context = new QOpenGLContext;
        s_context->setFormat(QSurfaceFormat::defaultFormat());
        s_context->setShareContext(QOpenGLContext::globalShareContext());
        s_isUsable = s_context->create() && s_context->makeCurrent(surface());
        s_hasNPOT =
            s_isUsable && s_context->functions()->hasOpenGLFeature(QOpenGLFunctions::NPOTTextures);
        qAddPostRoutine(freeContext);
        s_resetter = new Resetter;
    }
    return s_context;
}

QOffscreenSurface* surface()
{
    if (!s_surface) {
        s_surface = new QOffscreenSurface;
        s_surface->create();
    }
    return s_surface;
}

bool isContextUsable()
{
    context();
    return s_isUsable;
}

void freeContext()
{
    delete s_resetter;
    s_resetter = nullptr;
    delete s_context;
    s_context = nullptr;
    delete s_surface;
    s_surface = nullptr;
}

}  // namespace Zorv
