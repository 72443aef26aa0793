#include "editors/sound/audiosamplewidget.h"
#include "editors/sound/floatstream_p.h"
#include "editors/sound/playableform_p.h"
#include "editors/sound/wavepyramid_p.h"
#include "media/soundconversion.h"
#include "support/plannedsound.h"
#include "support/testsounds.h"
#include "support/testtable.h"

#include <QBuffer>
#include <QRandomGenerator>
#include <QSemaphore>
#include <QSignalSpy>
#include <QTest>
#include <QThreadPool>
#include <QTimer>

#include <atomic>

using namespace Zorv;

namespace {

QByteArray noise(int size, quint32 seed = 5)
{
    QRandomGenerator random(seed);
    QByteArray bytes(size, '\0');
    std::generate(bytes.begin(), bytes.end(), [&] { return char(random.generate()); });
    return bytes;
}

/// A widget that shows a sound, on planned devices.
struct Shown
{
    explicit Shown(const SoundSample& sound)
    {
        widget.resize(400, 230);
        widget.setSample(sound);
        QTRY_VERIFY(widget.sample().data == sound.data);
        QObject::connect(&widget, &AudioSampleWidget::stateChanged, &widget,
                         [this](SoundSample::State state) { states.append(state); });
    }
    QByteArray pull(int size) { return devices.output->stream->read(size); }
    QVector<int> taken() { return std::exchange(states, {}); }

    PlannedSound devices;
    AudioSampleWidget widget;
    QVector<int> states;
};

}  // namespace

class TestAudioSampleWidget : public QObject
{
    Q_OBJECT

private slots:
    void knowsExtremesOfEachPart_data();
    void knowsExtremesOfEachPart();
    void showsTheLastOfManySamples();
    void readsInAnotherThread();
    void playsToTheEnd();
    void loopsWithoutAGap();
    void playsWhatTheDeviceTakes();
    void tellsWhyNothingIsHeard();
    void takesTheNearestForm_data();
    void takesTheNearestForm();
    void readsFloats();
    void drawsWhatIsThere_data();
    void drawsWhatIsThere();
    void showsALoudFrameInAnHour();
    void marksClippedFrames_data();
    void marksClippedFrames();
    void selectsAndZooms();
};

void TestAudioSampleWidget::knowsExtremesOfEachPart_data()
{
    columns<int, int>("bits", "channels");
    for (const int bits : {8, 16, 24, 32}) {
        for (const int channels : {1, 2, 3, 16}) {
            row((QByteArray::number(bits) + " bits, " + QByteArray::number(channels)).constData(),
                bits, channels);
        }
    }
}

void TestAudioSampleWidget::knowsExtremesOfEachPart()
{
    const auto [bits, channels] = fetched<int, int>();
    const int frameBytes = bits / 8 * channels;
    const SoundSample sound = soundOf(noise(frameBytes * 11111), quint16(channels), quint16(bits));
    const WavePyramid shape(sound);
    const auto valueOf = [&, bits = bits](int frame, int channel) {
        quint32 value = 0;
        for (int b = 0; b < bits / 8; ++b) {
            const int at = frame * frameBytes + channel * bits / 8 + b;
            value |= quint32(uchar(sound.data[at])) << (32 - bits + 8 * b);
        }
        return qint32(bits == 8 ? value ^ 0x80000000 : value) >> (32 - bits);
    };
    QRandomGenerator random(1);
    for (int i = 0; i < 60; ++i) {
        const int channel = random.bounded(channels);
        const int first = random.bounded(11111);
        const int end = i < 20 ? 11111 : first + 1 + random.bounded(11111 - first);
        qint32 least = INT_MAX;
        qint32 greatest = INT_MIN;
        for (int frame = first; frame < end; ++frame) {
            least = std::min(least, valueOf(frame, channel));
            greatest = std::max(greatest, valueOf(frame, channel));
        }
        const WavePyramid::Extremes found = shape.extremes(channel, first, end);
        QCOMPARE(found.least, least);
        QCOMPARE(found.greatest, greatest);
    }
}

void TestAudioSampleWidget::showsTheLastOfManySamples()
{
    Shown shown(soundOf(noise(800)));
    const QPointer<PlannedOutput> output = shown.devices.output;
    shown.widget.setSample(soundOf(noise(400), 2));
    shown.widget.setSample(soundOf(noise(600)));
    QTRY_COMPARE(shown.widget.sample().frames, 300);
    QVERIFY(output && shown.devices.opened == 1);
    shown.widget.setSample(soundOf(noise(600), 2));
    shown.widget.play(false);
    QCOMPARE(int(shown.widget.sample().channels), 2);
    QCOMPARE(shown.devices.opened, 2);
    QCOMPARE(shown.pull(1000), noise(600));
    shown.widget.setSample({});
    QCOMPARE(int(shown.widget.currentState()), int(SoundSample::StoppedState));
    QTRY_VERIFY(!shown.devices.output);
    shown.widget.play(true);
    QCOMPARE(int(shown.widget.currentState()), int(SoundSample::StoppedState));
}

/// Only what is to be shown, once, also if it is wanted while it is being read.
void TestAudioSampleWidget::readsInAnotherThread()
{
    const PlannedSound devices;
    auto widget = std::make_unique<AudioSampleWidget>();
    const SoundSample sounds[] = {soundOf(noise(100)), soundOf(noise(300)), soundOf(noise(500))};
    std::atomic<int> reads{0};
    std::atomic<QThread*> thread{nullptr};
    QSemaphore gate;
    const auto reader = [&](int i) {
        return [&, i] {
            thread = QThread::currentThread();
            ++reads;
            gate.acquire();
            return sounds[i].data;
        };
    };
    widget->setSample(sounds[0], reader(0));
    widget->setSample(sounds[1], reader(1));
    QTRY_COMPARE(reads.load(), 1);
    QVERIFY(thread != QThread::currentThread());
    QVERIFY(widget->sample().data.isEmpty());
    gate.release(2);
    QTRY_COMPARE(widget->sample().data, sounds[1].data);
    widget->setSample(sounds[2], reader(2));
    widget->showNow();  // before its time
    QCOMPARE(widget->sample().data, sounds[2].data);
    widget->setSample(sounds[0], reader(0));
    QTRY_COMPARE(reads.load(), 3);
    QTimer::singleShot(0, [&] { gate.release(); });
    QTRY_COMPARE(widget->sample().data, sounds[0].data);
    widget->setSample(sounds[1], reader(1));
    QTRY_COMPARE(reads.load(), 4);
    gate.release();
    widget->showNow();  // while it is read
    QCOMPARE(widget->sample().data, sounds[1].data);
    QTest::qWait(200);
    QCOMPARE(reads.load(), 4);
    widget->setSample(sounds[2], reader(2));
    QTRY_COMPARE(reads.load(), 5);
    widget.reset();
    gate.release();
    QThreadPool::globalInstance()->waitForDone();
}

void TestAudioSampleWidget::playsToTheEnd()
{
    Shown shown(soundOf(noise(1001)));
    shown.widget.play(false);
    QCOMPARE(shown.pull(300), noise(1001).left(300));
    QCOMPARE(shown.widget.position(), 150);
    shown.widget.play(true);
    QCOMPARE(shown.taken(), QVector<int>{SoundSample::PlayingState});
    shown.devices.output->become(SoundOutput::Idle);
    shown.devices.output->become(SoundOutput::Active);
    shown.widget.pause();
    shown.widget.resume();
    QCOMPARE(shown.taken(), (QVector<int>{SoundSample::PlayingState, SoundSample::PausedState,
                                          SoundSample::PlayingState}));
    QCOMPARE(shown.pull(9999), noise(1001).mid(300, 700));
    shown.devices.output->become(SoundOutput::Idle);
    QCOMPARE(shown.taken(), QVector<int>{SoundSample::StoppedState});
    QCOMPARE(shown.widget.position(), 0);
}

void TestAudioSampleWidget::loopsWithoutAGap()
{
    Shown shown(soundOf(noise(700)));
    shown.widget.play(true);
    QByteArray heard;
    for (int i = 0; i < 30; ++i) {
        heard += shown.pull(100 + i);
    }
    QCOMPARE(heard, noise(700).repeated(10).left(heard.size()));
    QCOMPARE(shown.taken(), QVector<int>{SoundSample::LoopingState});
    shown.widget.setLooping(false);
    QCOMPARE(shown.taken(), QVector<int>{SoundSample::PlayingState});
    QCOMPARE(shown.pull(9999).size(), 700 - heard.size() % 700);
    shown.devices.output->become(SoundOutput::Idle);
    QCOMPARE(shown.taken(), QVector<int>{SoundSample::StoppedState});
}

void TestAudioSampleWidget::playsWhatTheDeviceTakes()
{
    const SoundSample sound = soundOf(noise(2000), 1, 8);
    Shown shown(sound);
    SoundSample wanted = soundOf({}, 2, 16);
    wanted.sampleRate = 44100;
    shown.devices.only = wanted;
    shown.widget.setSample(soundOf(noise(1000), 1, 8));
    QTest::qWait(200);
    shown.widget.setSample(soundOf(noise(2000), 1, 24));
    shown.widget.play(false);
    QTRY_COMPARE(int(shown.widget.currentState()), int(SoundSample::PlayingState));
    QCOMPARE(shown.pull(100000), convertSound(soundOf(noise(2000), 1, 24), wanted).sample.data);
    QVERIFY(shown.widget.position() <= 666 && shown.widget.position() > 660);
    QCOMPARE(shown.widget.sample().data, noise(2000));
    shown.widget.stop();
    shown.widget.setSample(soundOf(noise(4000), 1, 32));
    shown.widget.play(false);
    shown.widget.stop();
    QTest::qWait(100);
    QCOMPARE(int(shown.widget.currentState()), int(SoundSample::StoppedState));
}

void TestAudioSampleWidget::tellsWhyNothingIsHeard()
{
    Shown shown(soundOf(noise(500)));
    QVERIFY(shown.widget.problem().isEmpty());
    shown.widget.play(false);
    shown.devices.output->fails = true;
    shown.devices.isGone = true;
    shown.devices.output->become(SoundOutput::Stopped);
    QVERIFY(!shown.widget.problem().isEmpty());
    QCOMPARE(int(shown.widget.currentState()), int(SoundSample::StoppedState));
    shown.widget.play(false);
    QVERIFY(!shown.widget.problem().isEmpty());
    shown.devices.isGone = false;
    shown.widget.play(false);
    QVERIFY(shown.widget.problem().isEmpty());
    QCOMPARE(int(shown.widget.currentState()), int(SoundSample::PlayingState));
    shown.devices.problem = QStringLiteral("floats of 64 bits only");
    shown.widget.setSample(soundOf(noise(500), 2));
    shown.widget.play(false);
    QCOMPARE(shown.widget.problem(), shown.devices.problem);
    shown.devices.problem.clear();
    shown.devices.only = soundOf({}, 1, 32);
    shown.devices.only.sampleRate = 44100;
    shown.widget.setSample(soundOf(noise(8000000), 2));
    shown.widget.play(false);
    QTRY_VERIFY(!shown.widget.problem().isEmpty());  // it takes long to convert
    QVERIFY(shown.widget.currentState() == SoundSample::StoppedState);
    shown.widget.stop();
    QVERIFY(shown.widget.problem().isEmpty());
}

/// Devices as they are: "RATE CHANNELS SAMPLES" of all that is taken, `f` for floats.
void TestAudioSampleWidget::takesTheNearestForm_data()
{
    columns<QString, QString>("taken", "form");
    row("as it is", QStringLiteral("22050 1 s16 | 48000 2 s16"), QStringLiteral("22050 1 s16"));
    row("more bits first", QStringLiteral("22050 1 u8 s24 f32"), QStringLiteral("22050 1 s24"));
    row("floats before fewer bits", QStringLiteral("22050 1 u8 f32"),
        QStringLiteral("22050 1 f32"));
    row("fewer bits", QStringLiteral("22050 1 u8"), QStringLiteral("22050 1 u8"));
    row("its channels", QStringLiteral("22050 2 f32 | 48000 2 s16"), QStringLiteral("22050 2 f32"));
    row("its rate", QStringLiteral("48000 1 s32 | 48000 2 s16"), QStringLiteral("48000 1 s32"));
    row("one that is usual", QStringLiteral("44100 2 s16"), QStringLiteral("44100 2 s16"));
    row("none", QStringLiteral("22050 1 s64 f64"), QStringLiteral(""));
}

void TestAudioSampleWidget::takesTheNearestForm()
{
    const auto [taken, form] = fetched<QString, QString>();
    const auto nameOf = [](const PlayableForm& of) {
        return QStringLiteral("%1 %2 %3%4")
            .arg(of.info.sampleRate)
            .arg(of.info.channels)
            .arg(of.isFloat          ? "f"
                 : of.info.bits == 8 ? "u"
                                     : "s")
            .arg(of.info.bits);
    };
    QStringList all;
    for (const QString& device : taken.split(" | ")) {
        const QStringList words = device.split(' ');
        for (const QString& samples : words.mid(2)) {
            all.append(QStringList{words[0], words[1], samples}.join(' '));
        }
    }
    SampleInfo offered;
    offered.channels = 2;
    offered.sampleRate = 48000;
    const PlayableForm found = playableFormOf(
        soundOf({}), offered, [&](const PlayableForm& each) { return all.contains(nameOf(each)); });
    QCOMPARE(found.info.channels > 0 ? nameOf(found) : QString(), QString(form));
}

void TestAudioSampleWidget::readsFloats()
{
    QByteArray bytes;
    for (const qint32 value : {0, INT_MIN, INT_MAX, 1 << 30, -(1 << 29)}) {
        bytes.append(reinterpret_cast<const char*>(&value), 4);
    }
    QBuffer source(&bytes);
    QVERIFY(source.open(QIODevice::ReadOnly));
    FloatStream stream;
    stream.setSource(&source);
    float floats[5] = {};
    QCOMPARE(stream.read(reinterpret_cast<char*>(floats), 11), 8);
    QCOMPARE(stream.read(reinterpret_cast<char*>(floats + 2), 99), 12);
    QVERIFY(std::equal(floats, floats + 5, std::begin({0.0F, -1.0F, 1.0F, 0.5F, -0.25F})));
    QVERIFY(stream.atEnd());
}

void TestAudioSampleWidget::drawsWhatIsThere_data()
{
    columns<int, int, int, int, int>("channels", "bits", "rate", "frames", "bytes");
    row("nothing", 0, 0, 0, 0, 0);
    row("no channels", 0, 16, 22050, 100, 200);
    row("16 channels", 16, 16, 22050, 9, 288);
    row("no bits", 1, 0, 22050, 100, 100);
    row("12 bits", 1, 12, 22050, 100, 150);
    row("20 bits", 2, 20, 22050, 100, 500);
    row("24 bits", 1, 24, 22050, 100, 300);
    row("one frame", 1, 8, 22050, 1, 1);
    row("no rate", 1, 16, 0, 100, 200);
    row("4 billion a second", 1, 16, int(4000000000U), 100, 200);
    row("cut off", 2, 16, 22050, 10000, 203);
    row("frames below zero", 1, 16, 22050, -5, 100);
    row("thousands of channels", 65535, 8, 22050, 3, 65535 * 3);
}

void TestAudioSampleWidget::drawsWhatIsThere()
{
    const auto [channels, bits, rate, frames, bytes] = fetched<int, int, int, int, int>();
    SoundSample sound;
    sound.channels = quint16(channels);
    sound.bits = quint16(bits);
    sound.sampleRate = rate;
    sound.frames = frames;
    sound.data = noise(bytes);
    Shown shown(sound);
    for (const bool isTrue : {false, true}) {
        shown.widget.setShowsTrueChannels(isTrue);
        for (const QSize& size : {QSize(400, 230), QSize(7, 20), QSize(1, 1)}) {
            shown.widget.resize(size);
            shown.widget.zoomIn();
            shown.widget.grab();
            shown.widget.play(true);
            shown.widget.grab();
        }
    }
}

void TestAudioSampleWidget::showsALoudFrameInAnHour()
{
    SoundSample sound = soundOf(QByteArray(3600 * 8000, '\x80'), 1, 8);
    sound.sampleRate = 8000;
    sound.data[1234 * 8000 + 77] = '\xff';
    Shown shown(sound);
    const auto hasWave = [&](int x) {
        const QImage image = shown.widget.grab().toImage();
        for (int y = 110; y < 150; ++y) {
            if (image.pixelColor(x, y) == QColor(185, 175, 55)) {
                return true;
            }
        }
        return false;
    };
    QTRY_VERIFY(hasWave(1234 * 400 / 3600));
    QVERIFY(!hasWave(100) && !hasWave(300));
    shown.widget.showFrames(1234 * 8000, 200);
    QVERIFY(hasWave(77 * 2) && !hasWave(77 * 2 + 5));
}

void TestAudioSampleWidget::marksClippedFrames_data()
{
    columns<int, int, char, bool>("frames", "bits", "lower", "isMarked");
    row("many in a pixel", 4000, 16, '\x7f', false);
    row("many in a pixel, one at the end", 4000, 16, '\xff', true);
    row("many pixels a frame", 40, 16, '\x7f', false);
    row("many pixels a frame, one at the end", 40, 16, '\xff', true);
    row("20 bits", 4000, 20, '\0', false);
}

/// One frame of those of 16 bits is 0x7f00 and a lower byte.
void TestAudioSampleWidget::marksClippedFrames()
{
    const auto [frames, bits, lower, isMarked] = fetched<int, int, char, bool>();
    SoundSample sound = soundOf(QByteArray(frames * bits / 4, '\x20'), 2, bits);
    if (bits == 16) {
        sound.data[frames * 2] = lower;
        sound.data[frames * 2 + 1] = '\x7f';
    }
    Shown shown(sound);
    const QImage image = shown.widget.grab().toImage();
    int marks = 0;
    for (int x = 0; x < image.width(); ++x) {
        marks += image.pixelColor(x, 1) == QColor(220, 40, 40);
    }
    QCOMPARE(marks > 0, isMarked);
}

void TestAudioSampleWidget::selectsAndZooms()
{
    Shown shown(soundOf(noise(80000)));
    AudioSampleWidget& widget = shown.widget;
    widget.show();
    QVERIFY(QTest::qWaitForWindowExposed(&widget));
    widget.resize(400, 230);
    QTest::mousePress(&widget, Qt::LeftButton, {}, {100, 50});
    QTest::mouseMove(&widget, {40, 50});
    QTest::mouseRelease(&widget, Qt::LeftButton, {}, {40, 50});
    QCOMPARE(widget.selection(), (SoundRange{4000, 6000}));
    QTest::mouseClick(&widget, Qt::LeftButton, Qt::ShiftModifier, {300, 50});
    QCOMPARE(widget.selection(), (SoundRange{4000, 26000}));
    QTest::keyClick(&widget, Qt::Key_Right, Qt::ShiftModifier);
    QCOMPARE(widget.selection(), (SoundRange{4000, 26100}));
    QTest::keyClick(&widget, Qt::Key_Plus);
    QCOMPARE(widget.visibleFrames(), 32000.0);
    QTest::keyClick(&widget, Qt::Key_End);
    QCOMPARE(widget.firstFrame(), 8000.0);
    QTest::mouseDClick(&widget, Qt::LeftButton, {}, {40, 50});
    QCOMPARE(widget.selection(), (SoundRange{0, 40000}));
    widget.setSample(soundOf(noise(80000, 8)));
    QTest::qWait(200);
    QCOMPARE(widget.firstFrame(), 8000.0);
    widget.showFrames(-100, 1);
    QCOMPARE(widget.visibleFrames(), 8.0);
    QTest::mouseClick(&widget, Qt::LeftButton, {}, {40, 50});
    QVERIFY(widget.selection().isEmpty());
    widget.setSample({});
    QTRY_COMPARE(widget.visibleFrames(), 0.0);
}

QTEST_MAIN(TestAudioSampleWidget)
#include "tst_audiosamplewidget.moc"
