#include "graphics/shader_p.h"

#include <QByteArray>
#include <QOpenGLShaderProgram>

namespace Zorv {

namespace {

const char* const s_vertexShader = "attribute highp vec2 position;\n"
                                   "attribute highp vec2 texCoord;\n"
                                   "uniform highp mat4 matrix;\n"
                                   "varying mediump vec2 uv;\n"
                                   "void main() {\n"
                                   "    uv = texCoord;\n"
                                   "    gl_Position = matrix * vec4(position, 0.0, 1.0);\n"
                                   "}\n";

const char* const s_prefixes[Shader::Variants] = {"", "#define GRAYSCALE\n", "#define LIGHTER\n",
                                                  "#define DARKER\n"};

}  // namespace

// Grayscale is the red channel, not a luminance: this is the established look of the onion skin.
#define VARIANTS_OF_COLOR                                                                          \
    "    if (!mask)\n"                                                                             \
    "       color.a = 1.0;\n"                                                                      \
    "    if (color.a == 0.0)\n"                                                                    \
    "        discard;\n"                                                                           \
    "#if defined(GRAYSCALE)\n"                                                                     \
    "    gl_FragColor = vec4(color.rrr, color.a * opacity);\n"                                     \
    "#elif defined(LIGHTER)\n"                                                                     \
    "    gl_FragColor = vec4(color.rgb + vec3(0.5, 0.5, 0.5), color.a * opacity);\n"               \
    "#elif defined(DARKER)\n"                                                                      \
    "    gl_FragColor = vec4(color.rgb - vec3(0.5, 0.5, 0.5), color.a * opacity);\n"               \
    "#else\n"                                                                                      \
    "    gl_FragColor = vec4(color.rgb, color.a * opacity);\n"                                     \
    "#endif\n"                                                                                     \
    "}\n"

const char* const s_indexedShader =
    "uniform sampler2D image;\n"
    "uniform sampler2D palette;\n"
    "uniform highp float opacity;\n"
    "uniform lowp bool mask;\n"
    "varying mediump vec2 uv;\n"
    "void main() {\n"
    "    float index = texture2D(image, uv.st).r;\n"
    "    vec4 color = texture2D(palette, vec2(index, 0.5));\n" VARIANTS_OF_COLOR;

const char* const s_rgbaShader = "uniform sampler2D image;\n"
                                 "uniform highp float opacity;\n"
                                 "uniform lowp bool mask;\n"
                                 "varying mediump vec2 uv;\n"
                                 "void main() {\n"
                                 "    vec4 color = texture2D(image, uv.st);\n" VARIANTS_OF_COLOR;

// Tinting keeps the brightness, so the picture stays recognisable.
const char* const s_tintedIndexedShader =
    "uniform sampler2D image;\n"
    "uniform sampler2D palette;\n"
    "uniform highp float opacity;\n"
    "uniform lowp vec3 tint;\n"
    "varying mediump vec2 uv;\n"
    "void main() {\n"
    "    vec4 color = texture2D(palette, vec2(texture2D(image, uv.st).r, 0.5));\n"
    "    if (color.a == 0.0)\n"
    "        discard;\n"
    "    float shade = dot(color.rgb, vec3(0.299, 0.587, 0.114));\n"
    "    gl_FragColor = vec4(mix(vec3(shade), tint, 0.6), color.a * opacity);\n"
    "}\n";

const char* const s_tintedRgbaShader =
    "uniform sampler2D image;\n"
    "uniform highp float opacity;\n"
    "uniform lowp vec3 tint;\n"
    "varying mediump vec2 uv;\n"
    "void main() {\n"
    "    vec4 color = texture2D(image, uv.st);\n"
    "    if (color.a == 0.0)\n"
    "        discard;\n"
    "    float shade = dot(color.rgb, vec3(0.299, 0.587, 0.114));\n"
    "    gl_FragColor = vec4(mix(vec3(shade), tint, 0.6), color.a * opacity);\n"
    "}\n";

void setupShader(Shader& shader, const char* custom, const char* standard)
{
    for (int i = 0; i < Shader::Variants && shader.programs[i]; ++i) {
        QOpenGLShaderProgram& program = *shader.programs[i];
        const QByteArray fragment = QByteArray(s_prefixes[i]) + (custom ? custom : standard);
        // Both are required: with only a vertex shader the driver would draw in one colour.
        const bool isCompiled =
            program.addShaderFromSourceCode(QOpenGLShader::Vertex, s_vertexShader) &&
            program.addShaderFromSourceCode(QOpenGLShader::Fragment, fragment);
        shader.isWhole[i] = program.link() && isCompiled;
        shader.uniforms[i] = Uniforms();
    }
    const QOpenGLShaderProgram& first = *shader.programs[0];
    shader.tint = first.uniformLocation("tint");
    shader.matrix = first.uniformLocation("matrix");
    shader.opacity = first.uniformLocation("opacity");
    shader.mask = first.uniformLocation("mask");
    shader.image = first.uniformLocation("image");
    shader.palette = first.uniformLocation("palette");
    shader.position = first.attributeLocation("position");
    shader.texCoord = first.attributeLocation("texCoord");
}

}  // namespace Zorv
