#pragma once

class QOpenGLShaderProgram;

namespace Zorv {

/// The four programs of one kind of image, indexed by `Renderer::Shading`, and where their inputs
/// stand, which is the same in all four.
struct Shader
{
    QOpenGLShaderProgram* programs[4] = {};
    int matrix = -1;
    int mask = -1;
    int position = -1;
    int texCoord = -1;
    int image = -1;
    int palette = -1;
    int opacity = -1;
};

/// The fragment shaders of the library.
extern const char* const s_indexedShader;
extern const char* const s_rgbaShader;

/// Compiles and links all four from `custom`, or from `standard` where that is null.
void setupShader(Shader& shader, const char* custom, const char* standard);

}  // namespace Zorv
