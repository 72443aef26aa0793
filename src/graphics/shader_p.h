#pragma once

#include <QRgb>

#include <array>

class QOpenGLShaderProgram;

namespace Zorv {

/// Cache of the uniform values of a program.
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

/// The four programs for one kind of image, indexed by `Renderer::Shading`, and the locations of
/// their inputs, which are the same in all four. A tinting shader has only the first program.
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

/// Compiles and links all existing programs from `custom`, or from `standard` if `custom` is null.
void setupShader(Shader& shader, const char* custom, const char* standard);

}  // namespace Zorv
