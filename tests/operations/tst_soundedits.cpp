#include "operations/media/soundedits.h"

#include "family/assets/soundfile.h"
#include "operations/hostinterface.h"
#include "operations/media/selection.h"
#include "operations/media/soundloudness.h"
#include "support/testtable.h"

#include <zorv/core/progressreporter.h>
#include <zorv/media/soundconversion.h>
#include <zorv/media/soundedits.h>

#include <QtTest>

#include <cmath>

using namespace Operations;
using Family::SoundFile;
using Zorv::SoundSample;

namespace {

constexpr int Rate = 48000;

/// Parts of a sine of 16 bits, each so many seconds at so many decibels.
SoundSample sine(const QVector<QPair<double, double>>& parts, int channels, double frequency = 1000,
                 double phase = 0)
{
    SoundSample sound;
    sound.channels = quint16(channels);
    sound.bits = 16;
    sound.sampleRate = Rate;
    for (const auto& [seconds, level] : parts) {
        for (int i = 0; i < int(seconds * Rate); ++i, ++sound.frames) {
            const double value = std::sin(2 * M_PI * frequency * sound.frames / Rate + phase);
            const qint16 sample = qint16(std::lround(value * 32767 * std::pow(10, level / 20)));
            for (int channel = 0; channel < channels; ++channel) {
                sound.data.append(reinterpret_cast<const char*>(&sample), 2);
            }
        }
    }
    return sound;
}

// Gives up after so many steps.
class ImpatientHost final : public HostInterface
{
public:
    Zorv::ProgressReporter* progress(const QString&, int) override
    {
        struct Reporter final : Zorv::ProgressReporter
        {
            explicit Reporter(int most) : last(most) {}
            void update(int step, int) override { value = step; }
            bool isCanceled() const override { return value >= last; }
            void finish() override { delete this; }
            int last;
            int value = 0;
        };
        return new Reporter(patience);
    }

    int patience = 1000;
};

}  // namespace

class TestSoundEdits : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { startHost(&m_host); }
    void measures_data();
    void measures();
    void looksBetweenSamples();
    void normalizes();
    void trims();
    void staysAsItIs();

private:
    static QVector<QByteArray> content(const SoundFile& sounds);

    ImpatientHost m_host;
};

/// The values that the makers of the standard give for such sounds, to a tenth.
void TestSoundEdits::measures_data()
{
    columns<SoundSample, int, double>("sound", "outcome", "loudness");
    const int measured = SoundLoudness::Measured;
    row("-23 dB", sine({{5, -23}}, 2), measured, -23.0);
    row("-33 dB", sine({{5, -33}}, 2), measured, -33.0);
    row("one channel", sine({{5, -20}}, 1), measured, -23.0);
    row("soft parts do not count", sine({{3, -36}, {20, -23}, {3, -36}}, 2), measured, -23.0);
    row("silence does not count", sine({{3, -72}, {3, -36}, {18, -23}, {3, -72}}, 2), measured,
        -23.0);
    row("just long enough", sine({{0.4, -23}}, 2), measured, -23.0);
    row("too short", sine({{0.3999, -23}}, 2), int(SoundLoudness::TooShort), 0.0);
    row("too soft", sine({{1, -80}}, 2), int(SoundLoudness::Silent), 0.0);
    SoundSample odd = sine({{1, -23}}, 2);
    odd.bits = 12;
    row("12 bits", odd, int(SoundLoudness::Unmeasured), 0.0);
    odd.bits = 16;
    odd.sampleRate = 3;
    row("3 frames a second", odd, int(SoundLoudness::Unmeasured), 0.0);
    odd.channels = 0;
    row("no channels", odd, int(SoundLoudness::Unmeasured), 0.0);
    odd = sine({{1, -23}}, 2);
    odd.data.clear();
    row("broken", odd, int(SoundLoudness::Unmeasured), 0.0);
}

void TestSoundEdits::measures()
{
    const auto [sound, outcome, loudness] = fetched<SoundSample, int, double>();
    for (const int bits : {int(sound.bits), 8, 24, 32}) {
        Zorv::SampleInfo form = sound;
        form.bits = quint16(bits);
        const SoundLoudness found =
            loudnessOf(bits == sound.bits ? sound : Zorv::convertSound(sound, form).sample);
        QCOMPARE(int(found.outcome), outcome);
        if (outcome != SoundLoudness::Measured) {
            break;
        }
        const double step = bits == 8 ? 0.25 : 0.1;  // 8 bits are rough at these levels
        QVERIFY2(std::abs(found.integrated - loudness) <= step,
                 qPrintable(QString::number(found.integrated)));
    }
}

/// A wave that peaks halfway between its samples.
void TestSoundEdits::looksBetweenSamples()
{
    const SoundLoudness loudness = loudnessOf(sine({{1, -6}}, 1, Rate / 4.0, M_PI / 4));
    QVERIFY(std::abs(decibelsOf(loudness.samplePeak) + 9.01) < 0.02);
    QVERIFY(std::abs(decibelsOf(loudness.truePeak) + 6) < 0.2);
}

QVector<QByteArray> TestSoundEdits::content(const SoundFile& sounds)
{
    QVector<QByteArray> all;
    for (const auto& sound : sounds.items()) {
        all.append(sound->sampleData());
    }
    return all;
}

void TestSoundEdits::normalizes()
{
    SoundFile sounds;
    for (const double level : {-40.0, -12.0, -1.0}) {
        sounds.add(100, {}, sine({{1, level}}, 2));
    }
    const QVector<QByteArray> before = content(sounds);
    QVector<SoundChange> changes;
    QVERIFY(editSounds(&sounds, {}, "a", normalizingLoudness(-14, -3), &changes).errors.isEmpty());
    QCOMPARE(changes.size(), 3);
    for (int i = 0; i < 3; ++i) {
        SoundSample sound = sine({}, 2);
        sound.data = sounds.sound(i)->sampleData();
        sound.frames = Rate;
        QVERIFY(std::abs(loudnessOf(sound).integrated + 14) < 0.1);
        const auto* now = reinterpret_cast<const qint16*>(sound.data.constData());
        const auto* then = reinterpret_cast<const qint16*>(before[i].constData());
        for (int at = 0; at < Rate * 2; ++at) {
            QVERIFY(std::abs(then[at] * factorOf(changes[i].gain) - now[at]) <= 0.51);
        }
    }
    // The peaks come first, and what was not reached is told.
    const MediaResult loud = editSounds(&sounds, {}, "b", normalizingLoudness(-2, -3), &changes);
    QCOMPARE(loud.warnings.size(), 3);
    for (const auto& sound : sounds.items()) {
        SoundSample now = sine({}, 2);
        now.data = sound->sampleData();
        now.frames = Rate;
        QVERIFY(std::abs(decibelsOf(Zorv::peakOf(now, {0, Rate})) + 3) < 0.01);
    }
    sounds.undo();
    sounds.undo();
    QCOMPARE(content(sounds), before);
    QCOMPARE(sounds.undoTitle(), SoundFile::tr("Add sound"));
}

void TestSoundEdits::trims()
{
    const SoundSample sound = sine({{0.1, -90}, {0.5, -20}, {0.05, -90}}, 2, 333);
    const auto kept = [](const SoundEdit& edit, const SoundSample& of) { return edit(of).sample; };
    QCOMPARE(kept(trimmingSound(0.25, 0.5), sound).data,
             sound.data.mid(Rate / 4 * 4, Rate / 4 * 4));
    QCOMPARE(kept(trimmingSound(-1, 0.5), sound).data, sound.data.left(Rate / 2 * 4));
    QCOMPARE(kept(trimmingSound(0.5, 77), sound).data, sound.data.mid(Rate / 2 * 4));
    QVERIFY(!trimmingSound(1, 2)(sound).fault.isEmpty());
    const auto* values = reinterpret_cast<const qint16*>(sound.data.constData());
    int first = 0;
    int last = sound.frames - 1;
    const auto isSilent = [=](int i) { return std::abs(values[2 * i]) <= 32.767; };
    for (; isSilent(first); ++first) {
    }
    for (; isSilent(last); --last) {
    }
    const SoundSample audible = kept(trimmingSilence(-60), sound);
    QCOMPARE(audible.data, sound.data.mid(first * 4, (last - first + 1) * 4));
    QCOMPARE(audible.frames, last - first + 1);
    QVERIFY(!trimmingSilence(-10)(sound).fault.isEmpty());
    QCOMPARE(kept(inOrder(trimmingSound(0, 0.3), trimmingSilence(-60)), sound).data,
             sound.data.mid(first * 4, int(0.3 * Rate) * 4 - first * 4));
}

void TestSoundEdits::staysAsItIs()
{
    SoundFile sounds;
    sounds.add(0, "1,0", sine({{0.1, -9}}, 1));
    sounds.add(1, "2,0", sine({{1, -9}}, 1));
    const QVector<QByteArray> before = content(sounds);
    QVector<SoundChange> changes;
    Selection shortOne;
    QVERIFY(shortOne.add("1"));
    // Others are done beside one with a fault; alone it is an error.
    QCOMPARE(editSounds(&sounds, {}, "", normalizingLoudness(-20, 0), &changes).warnings.size(), 1);
    QCOMPARE(changes.size(), 1);
    sounds.undo();
    changes.clear();
    QCOMPARE(editSounds(&sounds, shortOne, "", normalizingLoudness(-20, 0), &changes).errors.size(),
             1);
    Zorv::SampleInfo form;
    form.sampleRate = 100;  // too far away
    QCOMPARE(editSounds(&sounds, {}, "", resamplingSound(form), &changes).errors.size(), 2);
    form.sampleRate = Rate;
    QVERIFY(editSounds(&sounds, {}, "", resamplingSound(form), &changes).errors.isEmpty());
    m_host.patience = 1;
    QVERIFY(editSounds(&sounds, {}, "", trimmingSound(0.05, 1), &changes).isCanceled);
    QVERIFY(changes.isEmpty());
    QCOMPARE(content(sounds), before);
    QCOMPARE(sounds.undoTitle(), SoundFile::tr("Add sound"));
    m_host.patience = 1000;
}

Q_DECLARE_METATYPE(SoundSample)

QTEST_MAIN(TestSoundEdits)
#include "tst_soundedits.moc"
