#pragma once

#include <QtGlobal>

class QOpenGLContext;
class QOpenGLFunctions;
class QSurface;

namespace Zorv {

/// Makes the shared context current and restores the previous one at the end. Needed because a
/// texture may be created in the middle of a paint.
class ContextScope
{
public:
    ContextScope();
    ~ContextScope();

    ContextScope(const ContextScope&) = delete;
    ContextScope& operator=(const ContextScope&) = delete;

    /// Null without GL, and in any thread other than the context's.
    QOpenGLFunctions* gl() const { return m_gl; }

private:
    QOpenGLContext* m_previous;
    QSurface* m_previousSurface;
    QOpenGLFunctions* m_gl = nullptr;
};

/// The number of the present context, 0 without one. Texture names are valid in one context only.
/// Each context gets a new number, starting at 1.
quint32 contextNumber();

unsigned int makeTextureName(QOpenGLFunctions& gl);
void deleteTextureName(QOpenGLFunctions& gl, unsigned int id);

/// Requests the deletion of a name in the thread of the context. `number` is the context the name
/// was created in; 0 means the present one. Any thread.
void releaseTextureName(unsigned int id, quint32 number);

/// Counts created names. GL reuses deleted names, so an equal name with another count may be
/// another texture.
quint32 textureNameCount();

}  // namespace Zorv
