#include "support/gltest.h"

#include "graphics/glcontext.h"

#include <QOffscreenSurface>
#include <QOpenGLContext>
#include <QOpenGLFunctions>
#include <QProcess>

#include <map>
#include <vector>

namespace GlTest {

namespace {

using Functions = QOpenGLFunctionsPrivate::Functions;

/// Qt keeps one table of functions for all contexts that share.
class Table : public QOpenGLFunctions
{
public:
    static Functions& functions()
    {
        QOpenGLContext* const previous = QOpenGLContext::currentContext();
        QSurface* const previousSurface = previous ? previous->surface() : nullptr;
        Zorv::context()->makeCurrent(Zorv::surface());
        Table table;
        table.initializeOpenGLFunctions();
        if (previous) {
            previous->makeCurrent(previousSurface);
        }
        return table.d_ptr->f;
    }
};

/// What can be set twice, told apart by these numbers.
enum State { Program, Unit, BoundTexture, Uniform, EnabledArray, Pointer, Capability, Blending };

// One counter at a time.
Functions* s_table = nullptr;
Functions s_driver;
Calls s_calls;
GLuint s_program = 0;
int s_unit = 0;
std::map<std::pair<State, quint64>, std::vector<quint64>> s_known;

void set(State state, quint64 what, std::vector<quint64> value)
{
    auto [entry, isNew] = s_known.try_emplace({state, what}, value);
    if (!isNew && entry->second == value) {
        ++s_calls.redundant;
    }
    entry->second = std::move(value);
}

void setUniform(GLint location, const void* values, int count)
{
    ++s_calls.uniforms;
    const auto* const words = static_cast<const quint32*>(values);
    set(Uniform, quint64(s_program) << 32 | quint32(location), {words, words + count});
}

void QOPENGLF_APIENTRY useProgram(GLuint program)
{
    s_calls.programs += program != 0;
    s_program = program;
    set(Program, 0, {program});
    s_driver.UseProgram(program);
}

void QOPENGLF_APIENTRY activeTexture(GLenum unit)
{
    ++s_calls.units;
    s_unit = int(unit - GL_TEXTURE0);
    set(Unit, 0, {unit});
    s_driver.ActiveTexture(unit);
}

void QOPENGLF_APIENTRY bindTexture(GLenum target, GLuint id)
{
    s_calls.images += id != 0 && s_unit == 0;
    s_calls.palettes += id != 0 && s_unit == 1;
    set(BoundTexture, quint64(s_unit), {id});
    s_driver.BindTexture(target, id);
}

void QOPENGLF_APIENTRY genTextures(GLsizei count, GLuint* ids)
{
    s_calls.names += count;
    s_driver.GenTextures(count, ids);
}

void QOPENGLF_APIENTRY deleteTextures(GLsizei count, const GLuint* ids)
{
    s_calls.deletedNames += count;
    s_driver.DeleteTextures(count, ids);
}

void QOPENGLF_APIENTRY texImage2D(GLenum target, GLint level, GLint internal, GLsizei width,
                                  GLsizei height, GLint border, GLenum format, GLenum type,
                                  const void* pixels)
{
    s_calls.uploads.append(QSize(width, height));
    s_calls.uploadedBytes += qint64(width) * height * (format == GL_RGBA ? 4 : 1);
    s_driver.TexImage2D(target, level, internal, width, height, border, format, type, pixels);
}

void QOPENGLF_APIENTRY uniform1i(GLint location, GLint value)
{
    setUniform(location, &value, 1);
    s_driver.Uniform1i(location, value);
}

void QOPENGLF_APIENTRY uniform1f(GLint location, GLfloat value)
{
    setUniform(location, &value, 1);
    s_driver.Uniform1f(location, value);
}

void QOPENGLF_APIENTRY uniformMatrix4fv(GLint location, GLsizei count, GLboolean transpose,
                                        const GLfloat* values)
{
    setUniform(location, values, 16 * count);
    s_driver.UniformMatrix4fv(location, count, transpose, values);
}

void QOPENGLF_APIENTRY enableArray(GLuint index)
{
    ++s_calls.arrays;
    set(EnabledArray, index, {1});
    s_driver.EnableVertexAttribArray(index);
}

void QOPENGLF_APIENTRY disableArray(GLuint index)
{
    ++s_calls.arrays;
    set(EnabledArray, index, {0});
    s_driver.DisableVertexAttribArray(index);
}

void QOPENGLF_APIENTRY arrayPointer(GLuint index, GLint size, GLenum type, GLboolean normalized,
                                    GLsizei stride, const void* data)
{
    ++s_calls.arrays;
    set(Pointer, index, {quint64(size), type, quint64(stride), quint64(quintptr(data))});
    s_driver.VertexAttribPointer(index, size, type, normalized, stride, data);
}

void QOPENGLF_APIENTRY enable(GLenum capability)
{
    s_calls.blending += capability == GL_BLEND;
    set(Capability, capability, {1});
    s_driver.Enable(capability);
}

void QOPENGLF_APIENTRY disable(GLenum capability)
{
    s_calls.blending += capability == GL_BLEND;
    set(Capability, capability, {0});
    s_driver.Disable(capability);
}

void QOPENGLF_APIENTRY blendEquation(GLenum equation)
{
    ++s_calls.blending;
    set(Blending, 0, {equation});
    s_driver.BlendEquation(equation);
}

void QOPENGLF_APIENTRY blendFunc(GLenum source, GLenum destination)
{
    ++s_calls.blending;
    set(Blending, 1, {source, destination});
    s_driver.BlendFunc(source, destination);
}

void QOPENGLF_APIENTRY drawArrays(GLenum mode, GLint first, GLsizei count)
{
    s_calls.vertices.append(count);
    s_driver.DrawArrays(mode, first, count);
}

void replace(Functions& f)
{
    f.UseProgram = useProgram;
    f.ActiveTexture = activeTexture;
    f.BindTexture = bindTexture;
    f.GenTextures = genTextures;
    f.DeleteTextures = deleteTextures;
    f.TexImage2D = texImage2D;
    f.Uniform1i = uniform1i;
    f.Uniform1f = uniform1f;
    f.UniformMatrix4fv = uniformMatrix4fv;
    f.EnableVertexAttribArray = enableArray;
    f.DisableVertexAttribArray = disableArray;
    f.VertexAttribPointer = arrayPointer;
    f.Enable = enable;
    f.Disable = disable;
    f.BlendEquation = blendEquation;
    f.BlendFunc = blendFunc;
    f.DrawArrays = drawArrays;
}

template <class... Arguments>
void spare(void (*&function)(Arguments...))
{
    function = [](Arguments...) {};
}

void takeTable()
{
    s_table = &Table::functions();
    s_driver = *s_table;
}

}  // namespace

int runAtScales(int argc, char** argv, const QByteArrayList& scales)
{
    QStringList arguments;
    for (int i = 1; i < argc; ++i) {
        arguments += QString::fromLocal8Bit(argv[i]);
    }
    int failed = 0;
    for (const QByteArray& scale : scales) {
        qputenv("QT_SCALE_FACTOR", scale);
        qInfo("scale %s", scale.constData());
        failed += QProcess::execute(QString::fromLocal8Bit(argv[0]), arguments) != 0;
    }
    return failed;
}

CallCounter::CallCounter()
{
    takeTable();
    restart();
    replace(*s_table);
}

CallCounter::~CallCounter()
{
    *s_table = s_driver;
}

void CallCounter::restart()
{
    s_calls = Calls();
    s_known.clear();
}

const Calls& CallCounter::calls() const
{
    return s_calls;
}

SparedDriver::SparedDriver()
{
    takeTable();
    Functions& f = *s_table;
    spare(f.UseProgram);
    spare(f.ActiveTexture);
    spare(f.BindTexture);
    spare(f.Uniform1i);
    spare(f.Uniform1f);
    spare(f.Uniform1fv);
    spare(f.UniformMatrix4fv);
    spare(f.EnableVertexAttribArray);
    spare(f.DisableVertexAttribArray);
    spare(f.VertexAttribPointer);
    spare(f.Enable);
    spare(f.Disable);
    spare(f.BlendEquation);
    spare(f.BlendFunc);
    spare(f.DrawArrays);
}

SparedDriver::~SparedDriver()
{
    *s_table = s_driver;
}

}  // namespace GlTest
