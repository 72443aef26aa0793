#pragma once

#include <QtGlobal>

class QOpenGLContext;
class QOpenGLFunctions;
class QSurface;

namespace Zorv {

/// Makes the shared context current, and at the end the one that was current before: a texture may
/// be made in the middle of a paint.
class ContextScope
{
public:
    ContextScope();
    ~ContextScope();

    ContextScope(const ContextScope&) = delete;
    ContextScope& operator=(const ContextScope&) = delete;

    /// Null without GL, and in any thread but that of the context.
    QOpenGLFunctions* gl() const { return m_gl; }

private:
    QOpenGLContext* m_previous;
    QSurface* m_previousSurface;
    QOpenGLFunctions* m_gl = nullptr;
};

/// Names are those of one context: each that is made has another number, from 1. 0 without one.
quint32 contextNumber();

unsigned int makeTextureName(QOpenGLFunctions& gl);
void deleteTextureName(QOpenGLFunctions& gl, unsigned int id);

/// Has a name deleted in the thread of the context. `number` is that of the context which the name
/// was made in; 0 is the present one. In any thread.
void releaseTextureName(unsigned int id, quint32 number);

/// Grows when a name is made, which may have been that of another texture before.
quint32 textureNameCount();

}  // namespace Zorv
