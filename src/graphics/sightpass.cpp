// The finished picture is copied into a texture and drawn over itself through a shader. So
// everything a renderer draws is simulated in the same way, whether by GL or by QPainter. Blending
// happens before the simulation, as on a real screen.

#include "graphics/sightpass_p.h"

#include "media/tools/colorblindness_p.h"

#include <QOpenGLFunctions>
#include <QOpenGLShaderProgram>

namespace Zorv {

namespace {

const char* const vertexSource = "attribute highp vec2 position;\n"
                                 "varying highp vec2 uv;\n"
                                 "void main() {\n"
                                 "    uv = position * 0.5 + 0.5;\n"
                                 "    gl_Position = vec4(position, 0.0, 1.0);\n"
                                 "}\n";

// The matrix works on linear light, so the shader decodes sRGB, multiplies, and encodes again.
// pow() costs a software renderer most of the frame, so both curves are polynomials: decoding in
// the encoded value, encoding in the fourth root of the light. Together their error is below a
// fifth of a byte step, so greys keep their exact bytes.
const char* const fragmentSource =
    "uniform sampler2D image;\n"
    "uniform highp mat3 sight;\n"
    "varying highp vec2 uv;\n"
    "void main() {\n"
    "    highp vec3 c = texture2D(image, uv).rgb;\n"
    "    highp vec3 curve = 0.0010566 + c * (0.0290743 + c * (0.5456072 + c * (0.5947418\n"
    "                       + c * (-0.2235723 + c * 0.0531041))));\n"
    "    highp vec3 light = mix(c / 12.92, curve, step(vec3(0.04045), c));\n"
    "    light = clamp(sight * light, 0.0, 1.0);\n"
    "    highp vec3 root = sqrt(sqrt(light));\n"
    "    curve = -0.0726147 + root * (0.2609616 + root * (0.9434720 - root * 0.1319723));\n"
    "    c = mix(light * 12.92, curve, step(vec3(0.0031308), light));\n"
    "    gl_FragColor = vec4(c, 1.0);\n"
    "}\n";

const float corners[] = {-1, -1, 1, -1, -1, 1, 1, 1};

QMatrix3x3 toMatrix(ColorBlindness blindness)
{
    QMatrix3x3 matrix;
    const SightMatrix& values = sightMatrix(blindness);
    for (int row = 0; row < 3; ++row) {
        for (int column = 0; column < 3; ++column) {
            matrix(row, column) = float(values[row][column]);
        }
    }
    return matrix;
}

}  // namespace

SightPass::SightPass() = default;

SightPass::~SightPass() = default;

bool SightPass::makeProgram()
{
    if (!m_program) {
        m_program = std::make_unique<QOpenGLShaderProgram>();
        m_program->bindAttributeLocation("position", 0);
        m_isWhole = m_program->addShaderFromSourceCode(QOpenGLShader::Vertex, vertexSource) &&
                    m_program->addShaderFromSourceCode(QOpenGLShader::Fragment, fragmentSource) &&
                    m_program->link();
    }
    return m_isWhole;
}

void SightPass::apply(QOpenGLFunctions& gl, const QSize& pixels, ColorBlindness blindness)
{
    if (pixels.isEmpty() || !makeProgram()) {
        return;
    }
    // A previous painter may have left these on.
    for (const GLenum state : {GL_BLEND, GL_DEPTH_TEST, GL_STENCIL_TEST, GL_SCISSOR_TEST}) {
        gl.glDisable(state);
    }
    gl.glViewport(0, 0, pixels.width(), pixels.height());
    gl.glActiveTexture(GL_TEXTURE0);
    if (m_texture == 0) {
        gl.glGenTextures(1, &m_texture);
    }
    gl.glBindTexture(GL_TEXTURE_2D, m_texture);
    for (const GLenum filter : {GL_TEXTURE_MIN_FILTER, GL_TEXTURE_MAG_FILTER}) {
        gl.glTexParameteri(GL_TEXTURE_2D, filter, GL_NEAREST);
    }
    for (const GLenum wrap : {GL_TEXTURE_WRAP_S, GL_TEXTURE_WRAP_T}) {
        gl.glTexParameteri(GL_TEXTURE_2D, wrap, GL_CLAMP_TO_EDGE);
    }
    gl.glCopyTexImage2D(GL_TEXTURE_2D, 0, GL_RGB, 0, 0, pixels.width(), pixels.height(), 0);
    m_program->bind();
    m_program->setUniformValue("image", 0);
    m_program->setUniformValue("sight", toMatrix(blindness));
    gl.glBindBuffer(GL_ARRAY_BUFFER, 0);
    m_program->enableAttributeArray(0);
    m_program->setAttributeArray(0, corners, 2);
    gl.glDrawArrays(GL_TRIANGLE_STRIP, 0, 4);
    m_program->disableAttributeArray(0);
    m_program->release();
    gl.glBindTexture(GL_TEXTURE_2D, 0);
}

void SightPass::free(QOpenGLFunctions& gl)
{
    m_program.reset();
    if (m_texture != 0) {
        gl.glDeleteTextures(1, &m_texture);
        m_texture = 0;
    }
}

}  // namespace Zorv
