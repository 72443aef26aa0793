// What is heard of a match: sounds mixed as a plain sum would, and those of the samples at their
// hits.

#include "operations/hostinterface.h"
#include "picture/loadedmatch.h"
#include "rules/tick.h"
#include "sound/matchsounds.h"
#include "support/plannedsound.h"

#include <QRandomGenerator>
#include <QtEndian>
#include <QtTest>

#include <climits>

using namespace Player;

namespace {

constexpr quint32 Seed = 20261122;

QByteArray bytesOf(const QVector<qint16>& samples)
{
    QByteArray bytes(samples.size() * 2, 0);
    for (int i = 0; i < samples.size(); ++i) {
        qToLittleEndian(samples.at(i), bytes.data() + 2 * i);
    }
    return bytes;
}

QVector<qint16> samplesOf(const QByteArray& bytes)
{
    QVector<qint16> samples;
    for (int i = 0; i + 1 < bytes.size(); i += 2) {
        samples.append(qFromLittleEndian<qint16>(bytes.constData() + i));
    }
    return samples;
}

/// A device that tells which stream it was given.
class HeardSystem : public Zorv::SoundSystem
{
public:
    PlannedOutput* output = nullptr;
    bool hasDevice = true;

    Zorv::SampleInfo playableForm(const Zorv::SampleInfo& form, QString*) override
    {
        return hasDevice ? form : Zorv::SampleInfo();
    }
    Zorv::SoundOutput* open(const Zorv::SampleInfo& form, QObject* parent) override
    {
        return output = new PlannedOutput(form, parent);
    }
};

}  // namespace

class TestMatchSounds : public QObject
{
    Q_OBJECT

private slots:
    void sumOfVoices();
    void loopBeyondTheEnd();
    void hitsAreHeard();
    void silenceWithoutDevice();

private:
    Operations::HostInterface m_host;
};

/// Read in parts of any size, the same comes out as by adding up all at once.
void TestMatchSounds::sumOfVoices()
{
    QRandomGenerator random(Seed);
    QVector<QVector<qint16>> voices(3);
    for (auto& voice : voices) {
        for (int i = random.bounded(200, 400) * 2; i > 0; --i) {
            voice.append(qint16(random.bounded(-20000, 20000)));
        }
    }
    const int volumes[] = {100, 50, 140};
    const int first = 30;
    const int last = 150;
    const int fade = 77;
    Mixer mixer;
    mixer.playMusic(bytesOf(voices[0]), volumes[0], {first, last}, fade);
    mixer.play(bytesOf(voices[1]), volumes[1]);
    mixer.play(bytesOf(voices[2]), volumes[2]);
    QByteArray heard;
    while (heard.size() < 4 * 900) {
        heard += mixer.read(4 * random.bounded(1, 90));
    }
    const QVector<qint16> samples = samplesOf(heard);
    for (int i = 0; i < samples.size(); ++i) {
        int frame = i / 2;
        const qint64 volume = qint64(volumes[0]) * qMin(frame, fade) / fade;
        while (frame > last) {
            frame -= last + 1 - first;
        }
        qint64 sum = voices[0].at(frame * 2 + i % 2) * volume / 100;
        for (int voice : {1, 2}) {
            sum += i < voices[voice].size() ? voices[voice].at(i) * volumes[voice] / 100 : 0;
        }
        QCOMPARE(int(samples.at(i)), int(qBound<qint64>(-32768, sum, 32767)));
    }
}

/// The last frame of a loop lies behind the sound: it ends with it.
void TestMatchSounds::loopBeyondTheEnd()
{
    Mixer mixer;
    const QVector<qint16> sound{100, 200, 300, 400};
    mixer.playMusic(bytesOf(sound), 100, {0, INT_MAX}, 0);
    QCOMPARE(samplesOf(mixer.read(16)), sound + sound);
}

void TestMatchSounds::hitsAreHeard()
{
    Operations::startHost(&m_host);
    HeardSystem system;
    Zorv::SoundSystem::setInstance(&system);
    LoadedMatch match;
    QString error;
    QVERIFY(match.load({ZORV_SAMPLES "/arena", {"maren", "iwao"}, {}, false}, &error));
    match.stage.music = {};
    MatchSounds sounds(match);
    QCOMPARE(sounds.notes(), QStringList());
    sounds.waitForFinished();
    Rules::State state = Rules::firstState(match.game);
    state.fighters[0].x = -20 * Rules::One;
    state.fighters[1].x = 20 * Rules::One;
    bool hasHit = false;
    for (int t = 0; t < 20 && !hasHit; ++t) {
        Rules::Inputs inputs;
        inputs.signs[0] = t == 1 ? Family::MotionStep::Light : 0;
        Rules::tick(match.game, inputs, &state);
        QCOMPARE(system.output->stream->read(400), QByteArray(400, 0));
        sounds.see(state);
        hasHit = state.fighters[1].life < match.game.fighters[1].life;
    }
    QVERIFY(hasHit);
    QVERIFY(system.output->stream->read(40000) != QByteArray(40000, 0));
    Zorv::SoundSystem::setInstance(nullptr);
}

void TestMatchSounds::silenceWithoutDevice()
{
    HeardSystem system;
    system.hasDevice = false;
    Zorv::SoundSystem::setInstance(&system);
    LoadedMatch match;
    QString error;
    QVERIFY(match.load({ZORV_SAMPLES "/arena", {}, {}, false}, &error));
    MatchSounds sounds(match);
    sounds.see(Rules::firstState(match.game));
    sounds.setPaused(true);
    QVERIFY(!system.output);
    Zorv::SoundSystem::setInstance(nullptr);
}

QTEST_GUILESS_MAIN(TestMatchSounds)
#include "tst_matchsounds.moc"
