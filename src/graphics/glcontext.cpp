#include "graphics/glcontext.h"

#include "graphics/glcontext_p.h"
#include "graphics/resetter.h"

#include <QGuiApplication>
#include <QOffscreenSurface>
#include <QOpenGLContext>
#include <QOpenGLFunctions>
#include <QThread>

#include <atomic>
#include <mutex>
#include <unordered_set>
#include <vector>

namespace Zorv {

bool s_hasNPOT = false;
Resetter* s_resetter = nullptr;

namespace {

struct SharedContext
{
    QOpenGLContext context;
    Resetter resetter;
    std::unordered_set<unsigned int> names;
    bool isUsable = false;
};

// On the heap, because textures may be destroyed after all statics.
SharedContext* s_shared = nullptr;
QOffscreenSurface* s_surface = nullptr;
quint32 s_nameCount = 0;

// Guards the resetter and the context number against textures destroyed on other threads.
// Recursive, because on the context's own thread the deletion runs inside the signal.
std::recursive_mutex s_mutex;
std::atomic<quint32> s_contextNumber{0};
quint32 s_contextCount = 0;

/// Checked first, because Qt prints a warning if its platform has no GL.
bool hasPlatformGl()
{
    return qobject_cast<QGuiApplication*>(QCoreApplication::instance()) &&
           QGuiApplication::platformName() != QLatin1String("minimal");
}

bool setUp(QOpenGLContext& context)
{
    context.setFormat(QSurfaceFormat::defaultFormat());
    context.setShareContext(QOpenGLContext::globalShareContext());
    return hasPlatformGl() && context.create() && context.makeCurrent(surface()) &&
           context.functions()->hasOpenGLFeature(QOpenGLFunctions::Shaders);
}

}  // namespace

QOpenGLContext* context()
{
    if (!s_shared) {
        QOpenGLContext* const previous = QOpenGLContext::currentContext();
        QSurface* const previousSurface = previous ? previous->surface() : nullptr;
        s_shared = new SharedContext;
        s_shared->isUsable = setUp(s_shared->context);
        s_hasNPOT = s_shared->isUsable &&
                    s_shared->context.functions()->hasOpenGLFeature(QOpenGLFunctions::NPOTTextures);
        qAddPostRoutine(freeContext);
        const std::lock_guard lock(s_mutex);
        s_contextNumber = ++s_contextCount;
        s_resetter = &s_shared->resetter;
        if (previous) {
            previous->makeCurrent(previousSurface);
        }
    }
    return &s_shared->context;
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
    return s_shared->isUsable;
}

void freeContext()
{
    if (s_shared) {
        {
            const std::lock_guard lock(s_mutex);
            s_resetter = nullptr;
            s_contextNumber = 0;
        }
        // The names are shared with the contexts of the widgets and of the application, which would
        // keep the textures alive.
        const std::vector<unsigned int> names(s_shared->names.begin(), s_shared->names.end());
        const ContextScope scope;
        if (scope.gl() && !names.empty()) {
            scope.gl()->glDeleteTextures(GLsizei(names.size()), names.data());
        }
        qRemovePostRoutine(freeContext);
    }
    delete s_shared;
    s_shared = nullptr;
    delete s_surface;
    s_surface = nullptr;
}

ContextScope::ContextScope()
    : m_previous(QOpenGLContext::currentContext()),
      m_previousSurface(m_previous ? m_previous->surface() : nullptr)
{
    QOpenGLContext* const shared = context();
    if (s_shared->isUsable && shared->thread() == QThread::currentThread() &&
        shared->makeCurrent(surface())) {
        m_gl = shared->functions();
    }
}

ContextScope::~ContextScope()
{
    if (m_gl && m_previous && m_previous != QOpenGLContext::currentContext()) {
        m_previous->makeCurrent(m_previousSurface);
    }
}

quint32 contextNumber()
{
    return s_contextNumber;
}

unsigned int makeTextureName(QOpenGLFunctions& gl)
{
    GLuint id = 0;
    gl.glGenTextures(1, &id);
    s_shared->names.insert(id);
    ++s_nameCount;
    return id;
}

void deleteTextureName(QOpenGLFunctions& gl, unsigned int id)
{
    gl.glDeleteTextures(1, &id);
    s_shared->names.erase(id);
}

void releaseTextureName(unsigned int id, quint32 number)
{
    const std::lock_guard lock(s_mutex);
    if (s_resetter) {
        const bool isOfThisContext = number == 0 || number == s_contextNumber;
        emit s_resetter->resetOnRenderThread(isOfThisContext ? id : 0);
    }
}

quint32 textureNameCount()
{
    return s_nameCount;
}

}  // namespace Zorv
