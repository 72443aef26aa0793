#pragma once

#include "media/tools/colorblindness.h"

#include <QSize>

#include <memory>

class QOpenGLFunctions;
class QOpenGLShaderProgram;

namespace Zorv {

/// Shows what is drawn in a frame buffer as somebody else sees it. All calls need the context to be
/// current.
class SightPass
{
public:
    SightPass();
    ~SightPass();

    /// Changes all pixels of the frame buffer that is bound. The program is made at the first call.
    /// Where it does not compile the picture stays as it is.
    void apply(QOpenGLFunctions& gl, const QSize& pixels, ColorBlindness blindness);

    /// Lets go of what it has in GL.
    void free(QOpenGLFunctions& gl);

private:
    bool makeProgram();

    std::unique_ptr<QOpenGLShaderProgram> m_program;
    unsigned m_texture = 0;
    bool m_isWhole = false;
};

}  // namespace Zorv
