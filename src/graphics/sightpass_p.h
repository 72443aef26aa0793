#pragma once

#include "media/tools/colorblindness.h"

#include <QSize>

#include <memory>

class QOpenGLFunctions;
class QOpenGLShaderProgram;

namespace Zorv {

/// Simulates a colour vision deficiency in a frame buffer. All calls need the context to be
/// current.
class SightPass
{
public:
    SightPass();
    ~SightPass();

    /// Changes all pixels of the bound frame buffer. The first call creates the program. If it does
    /// not compile, the picture stays as it is.
    void apply(QOpenGLFunctions& gl, const QSize& pixels, ColorBlindness blindness);

    /// Releases its GL objects.
    void free(QOpenGLFunctions& gl);

private:
    bool makeProgram();

    std::unique_ptr<QOpenGLShaderProgram> m_program;
    unsigned m_texture = 0;
    bool m_isWhole = false;
};

}  // namespace Zorv
