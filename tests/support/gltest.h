#pragma once

#include <QApplication>
#include <QByteArrayList>
#include <QSize>
#include <QTest>
#include <QVector>

/// The main of a test that draws with GL: contexts share what they make.
#define ZORV_GL_TEST_MAIN(TestClass)                                                               \
    int main(int argc, char** argv)                                                                \
    {                                                                                              \
        QCoreApplication::setAttribute(Qt::AA_ShareOpenGLContexts);                                \
        QApplication application(argc, argv);                                                      \
        TestClass test;                                                                            \
        return QTest::qExec(&test, argc, argv);                                                    \
    }

/// The same at several scales of the screen. A scale is that of a process, so each has one.
#define ZORV_GL_TEST_MAIN_AT_SCALES(TestClass, ...)                                                \
    int main(int argc, char** argv)                                                                \
    {                                                                                              \
        if (!qEnvironmentVariableIsSet("QT_SCALE_FACTOR")) {                                       \
            return GlTest::runAtScales(argc, argv, {__VA_ARGS__});                                 \
        }                                                                                          \
        QCoreApplication::setAttribute(Qt::AA_ShareOpenGLContexts);                                \
        QGuiApplication::setHighDpiScaleFactorRoundingPolicy(                                      \
            Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);                                    \
        QApplication application(argc, argv);                                                      \
        TestClass test;                                                                            \
        return QTest::qExec(&test, argc, argv);                                                    \
    }

namespace GlTest {

/// The number of scales at which the program fails.
int runAtScales(int argc, char** argv, const QByteArrayList& scales);

/// What was asked of GL, by whoever calls it through Qt.
struct Calls
{
    int programs = 0;  ///< bound; a release is not counted
    int images = 0;    ///< bound to unit 0, unbinding aside
    int palettes = 0;  ///< bound to unit 1
    int units = 0;     ///< made active
    int uniforms = 0;
    int arrays = 0;  ///< enabled, disabled, pointed to
    int blending = 0;
    int redundant = 0;       ///< calls that set what the counter has seen set already
    int names = 0;           ///< of textures, made
    int deletedNames = 0;    ///< of textures
    QVector<int> vertices;   ///< of each draw
    QVector<QSize> uploads;  ///< of images and palettes
    qint64 uploadedBytes = 0;

    int draws() const { return vertices.size(); }
};

/// Counts the calls of all contexts that share with the library's, as long as it lives. One at a
/// time.
class CallCounter
{
public:
    CallCounter();
    ~CallCounter();

    CallCounter(const CallCounter&) = delete;
    CallCounter& operator=(const CallCounter&) = delete;

    /// Begins anew, and forgets what was set.
    void restart();
    const Calls& calls() const;
};

/// Lets no call of drawing reach the driver as long as it lives: what is left is the work of the
/// caller. Not together with a counter.
class SparedDriver
{
public:
    SparedDriver();
    ~SparedDriver();

    SparedDriver(const SparedDriver&) = delete;
    SparedDriver& operator=(const SparedDriver&) = delete;
};

}  // namespace GlTest
