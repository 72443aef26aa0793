// Plays into a sound server of its own, whose output is recorded.

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

SoundSample noise(int frames)
{
    QRandomGenerator random(11);
    SoundSample sound = soundOf(QByteArray(frames * 4, '\0'), 2, 16);
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
    m_server.start(
        "pulseaudio",
        {"-n", "--daemonize=no", "--use-pid-file=no", "--exit-idle-time=-1", "--disable-shm=yes",
         "-L", "module-native-protocol-unix auth-anonymous=1 socket=" + socket, "-L",
         QStringLiteral("module-null-sink sink_name=zorv format=s16le rate=%1 channels=2 "
                        "norewinds=1")
             .arg(Rate)});
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
                    "--format=s16le", QStringLiteral("--rate=%1").arg(Rate)});
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
    const QByteArray second = sound.data.repeated(10).left(Rate * 4);
    bool isWhole = false;
    for (int i = 0; i < MostTries && !isWhole; ++i) {
        isWhole = recorded(sound, true, 2000).left(second.size()) == second;
    }
    QVERIFY(isWhole);
}

// The server is named before Qt looks for one.
int main(int argc, char** argv)
{
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
