#pragma once

#include <QRgb>

#include <array>

class QOpenGLShaderProgram;

namespace Zorv {

/// The values that the uniforms of a program are known to have.
struct Uniforms
{
    int image = -1;
    int palette = -1;
    int mask = -1;
    float opacity = 0;
    bool hasOpacity = false;
    bool hasMatrix = false;
    bool hasTint = false;
    QRgb tint = 0;
    std::array<float, 16> matrix;
};

/// The four programs of one kind of image, indexed by `Renderer::Shading`, and where their inputs
/// stand, which is the same in all four. One that only tints has the first of them alone.
struct Shader
{
    static constexpr int Variants = 4;

    QOpenGLShaderProgram* programs[Variants] = {};
    bool isWhole[Variants] = {};  // compiled and linked
    Uniforms uniforms[Variants];
    int matrix = -1;
    int mask = -1;
    int position = -1;
    int texCoord = -1;
    int image = -1;
    int palette = -1;
    int opacity = -1;
    int tint = -1;
};

/// The fragment shaders of the library.
extern const char* const s_indexedShader;
extern const char* const s_rgbaShader;
extern const char* const s_tintedIndexedShader;
extern const char* const s_tintedRgbaShader;

/// Compiles and links all that there are from `custom`, or from `standard` where that is null.
void setupShader(Shader& shader, const char* custom, const char* standard);

}  // namespace Zorv
