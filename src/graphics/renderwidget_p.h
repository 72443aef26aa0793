#pragma once

#include "graphics/shader_p.h"

#include <QMatrix4x4>

namespace Zorv {

class Renderer;
class Texture;

/// What a widget knows of the state that its GL context is in.
struct RenderWidgetPrivate
{
    Renderer* renderer = nullptr;
    Shader indexed;
    Shader rgba;
    const Texture* lastPalette = nullptr;
    QOpenGLShaderProgram* lastProgram = nullptr;
    QMatrix4x4 projection;
    bool blendEnabled = false;
    int blendEquation = 0;  // 0, -1, -1: not known
    int blendSource = -1;
    int blendDestination = -1;
};

}  // namespace Zorv
