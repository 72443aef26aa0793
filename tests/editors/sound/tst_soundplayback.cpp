// Plays into a sound server of its own, whose output is recorded. The server takes one form of
// samples; each form is played by a process of its own, for Qt keeps to the first server it meets.

#include "editors/sound/audiosamplewidget.h"
#include "support/testsounds.h"

#include <QApplication>
#include <QProcess>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QTest>

using namespace Zorv;

namespace {

constexpr int Rate = 22050;
constexpr int MostTries = 4;
const char* const FormVariable = "ZORV_TEST_FORM";

/// As the server calls it.
struct Form
{
    const char* name;
    int bits;
};

constexpr Form forms[] = {{"s16le", 16}, {"u8", 8}, {"s24le", 24}};

const Form* s_form = nullptr;

SoundSample noise(int frames)
{
    QRandomGenerator random(11);
    const int size = frames * 2 * s_form->bits / 8;
    SoundSample sound = soundOf(QByteArray(size, '\0'), 2, quint16(s_form->bits));
    std::generate(sound.data.begin(), sound.data.end(), [&] { return char(random.generate()); });
    return sound;
}

}  // namespace

class TestSoundPlayback : public QObject
{
    Q_OBJECT

public:
    explicit TestSoundPlayback(const QTemporaryDir& folder) : m_folder(folder) {}

private slots:
    void initTestCase();
    void cleanupTestCase();
    void playsEachSample();
    void loopsWithoutAGap();

private:
    QByteArray recorded(const SoundSample& sound, bool loops, int milliseconds);

    const QTemporaryDir& m_folder;
    QProcess m_server;
    QString m_problem;
};

void TestSoundPlayback::initTestCase()
{
    const QString socket = m_folder.filePath("native");
    m_server.start("pulseaudio",
                   {"-n", "--daemonize=no", "--use-pid-file=no", "--exit-idle-time=-1",
                    "--disable-shm=yes", "-L",
                    "module-native-protocol-unix auth-anonymous=1 socket=" + socket, "-L",
                    QStringLiteral("module-null-sink sink_name=zorv format=%1 rate=%2 channels=2 "
                                   "norewinds=1")
                        .arg(QLatin1String(s_form->name), QString::number(Rate))});
    const bool isUp = m_server.waitForStarted() && QTest::qWaitFor([&] {
                          return QFile::exists(socket) || m_server.state() == QProcess::NotRunning;
                      });
    if (!isUp || m_server.state() == QProcess::NotRunning) {
        QSKIP("PulseAudio cannot be started here, so nothing is played.");
    }
    AudioSampleWidget widget;
    widget.setSample(noise(100));
    widget.showNow();
    if (!QTest::qWaitFor([&] {
            widget.play(false);
            return widget.problem().isEmpty();
        })) {
        QSKIP("Qt has no plugin for PulseAudio here, so nothing is played.");
    }
}

void TestSoundPlayback::cleanupTestCase()
{
    m_server.terminate();
    m_server.waitForFinished();
}

QByteArray TestSoundPlayback::recorded(const SoundSample& sound, bool loops, int milliseconds)
{
    QProcess recorder;
    recorder.start(ZORV_TEST_PROGRAMS "/parec",
                   {"--raw", "--latency-msec=20", "--device=zorv.monitor", "--channels=2",
                    QLatin1String("--format=") + s_form->name,
                    QStringLiteral("--rate=%1").arg(Rate)});
    if (!recorder.waitForStarted() || !recorder.waitForReadyRead(10000)) {
        return {};
    }
    AudioSampleWidget widget;
    widget.setSample(sound);
    widget.play(loops);
    const auto hasStopped = [&] { return widget.currentState() == SoundSample::StoppedState; };
    if (!QTest::qWaitFor([&] { return !hasStopped(); })) {
        return {};
    }
    if (loops) {
        QTest::qWait(milliseconds);
        widget.stop();
    } else if (!QTest::qWaitFor(hasStopped, 10 * milliseconds)) {
        return {};
    }
    QTest::qWait(600);
    recorder.terminate();
    recorder.waitForFinished();
    const QByteArray all = recorder.readAllStandardOutput();
    const int start = all.indexOf(sound.data.left(40));
    return start < 0 ? QByteArray() : all.mid(start);
}

/// A machine that is busy may be late, and then the record has a hole: that is not ours.
void TestSoundPlayback::playsEachSample()
{
    const SoundSample sound = noise(Rate);
    bool isWhole = false;
    for (int i = 0; i < MostTries && !isWhole; ++i) {
        isWhole = recorded(sound, false, 1000).left(sound.data.size()) == sound.data;
    }
    QVERIFY(isWhole);
}

void TestSoundPlayback::loopsWithoutAGap()
{
    const SoundSample sound = noise(3000);
    const QByteArray second = sound.data.repeated(10).left(sound.data.size() * Rate / 3000);
    bool isWhole = false;
    for (int i = 0; i < MostTries && !isWhole; ++i) {
        isWhole = recorded(sound, true, 2000).left(second.size()) == second;
    }
    QVERIFY(isWhole);
}

namespace {

int playAllForms(const char* program, int argc, char** argv)
{
    QStringList arguments;
    for (int i = 1; i < argc; ++i) {
        arguments += QString::fromLocal8Bit(argv[i]);
    }
    int failures = 0;
    for (const Form& form : forms) {
        qputenv(FormVariable, form.name);
        failures += std::abs(QProcess::execute(QString::fromLocal8Bit(program), arguments));
    }
    return failures;
}

}  // namespace

// The server is named before Qt looks for one.
int main(int argc, char** argv)
{
    const QByteArray wanted = qgetenv(FormVariable);
    for (const Form& form : forms) {
        s_form = wanted == form.name ? &form : s_form;
    }
    if (!s_form) {
        return playAllForms(argv[0], argc, argv);
    }
    const QTemporaryDir folder;
    qputenv("PULSE_SERVER", "unix:" + folder.filePath("native").toLocal8Bit());
    qputenv("PULSE_RUNTIME_PATH", folder.path().toLocal8Bit());
    qputenv("PULSE_STATE_PATH", folder.path().toLocal8Bit());
    qputenv("XDG_RUNTIME_DIR", folder.path().toLocal8Bit());
    qputenv("HOME", folder.path().toLocal8Bit());
    const QApplication app(argc, argv);
    TestSoundPlayback test(folder);
    return QTest::qExec(&test, argc, argv);
}

#include "tst_soundplayback.moc"
