#include "media/soundconversion.h"
#include "media/soundedits.h"
#include "support/testtable.h"

#include <QRandomGenerator>
#include <QTest>

#include <atomic>
#include <cmath>
#include <samplerate.h>
#include <thread>

using namespace Zorv;

namespace {

SampleInfo formOf(int channels, int bits, int rate, int frames = 0)
{
    SampleInfo info;
    info.channels = quint16(channels);
    info.bits = quint16(bits);
    info.sampleRate = rate;
    info.frames = frames;
    return info;
}

SoundSample noise(const SampleInfo& form)
{
    QRandomGenerator random(7);
    SoundSample sound;
    static_cast<SampleInfo&>(sound) = form;
    sound.data.resize(form.frames * form.channels * form.bits / 8);
    std::generate(sound.data.begin(), sound.data.end(), [&] { return char(random.generate()); });
    return sound;
}

/// A value as a number of 32 bits: its own bits are the upper ones.
qint32 upperBits(const SoundSample& sound, int i)
{
    const int bytes = sound.bits / 8;
    quint32 value = 0;
    for (int b = 0; b < bytes; ++b) {
        value = value >> 8 | quint32(uchar(sound.data[i * bytes + b])) << 24;
    }
    return qint32(bytes == 1 ? value ^ 0x80000000 : value);
}

/// The whole sound at once, by the book.
QByteArray plainly(const SoundSample& sound, const SampleInfo& target)
{
    const int from = sound.channels;
    std::vector<float> in(size_t(sound.frames) * size_t(from));
    for (int i = 0; i < int(in.size()); ++i) {
        in[size_t(i)] = sound.bits == 8 ? float(uchar(sound.data[i]) / 127.5 - 1.0)
                                        : float(upperBits(sound, i) / 2147483648.0);
    }
    const double ratio = double(target.sampleRate) / sound.sampleRate;
    const int frames = std::max(int(sound.frames * ratio), 1);
    std::vector<float> out(size_t(frames) * size_t(from));
    if (target.sampleRate == sound.sampleRate) {
        out = in;
    } else {
        SRC_DATA data{};
        data.data_in = in.data();
        data.data_out = out.data();
        data.input_frames = sound.frames;
        data.output_frames = frames;
        data.src_ratio = ratio;
        src_simple(&data, SRC_SINC_BEST_QUALITY, from);
    }
    QByteArray bytes;
    for (int frame = 0; frame < frames; ++frame) {
        for (int channel = 0; channel < target.channels; ++channel) {
            float value = out[size_t(frame * from + std::min(channel, from - 1))];
            if (from != target.channels) {
                value = 0;
                for (int c = 0; c < from; ++c) {
                    value += out[size_t(frame * from + c)];
                }
                value *= 1.0F / float(from);
            }
            if (target.bits == 8) {
                bytes += char(int((double(qBound(-1.0F, value, 1.0F)) + 1.0) * 127.5));
            } else if (target.bits == 16) {
                short word = 0;
                src_float_to_short_array(&value, &word, 1);
                bytes.append(reinterpret_cast<const char*>(&word), 2);
            } else {
                int word = 0;
                src_float_to_int_array(&value, &word, 1);
                const int size = target.bits / 8;
                bytes.append(reinterpret_cast<const char*>(&word) + 4 - size, size);
            }
        }
    }
    return bytes;
}

}  // namespace

class TestSoundConversion : public QObject
{
    Q_OBJECT

private slots:
    void convertsAsTheWholeAtOnce_data();
    void convertsAsTheWholeAtOnce();
    void refuses_data();
    void refuses();
    void takesWhatIsThere();
    void isCanceled();
    void edits_data();
    void edits();
};

void TestSoundConversion::convertsAsTheWholeAtOnce_data()
{
    columns<SampleInfo, SampleInfo>("from", "to");
    const int rates[] = {8000, 22050, 44100, 192000};
    for (const int bits : {8, 16, 24, 32}) {
        for (const int channels : {1, 2, 5}) {
            for (int i = 0; i < 4; ++i) {
                const SampleInfo from = formOf(channels, bits, 22050, 20000 + i);
                const SampleInfo to = formOf(1 + (i + bits / 8) % 3, 8 * (1 + i), rates[i]);
                const QByteArray name = QByteArray::number(bits) + " bits, " +
                                        QByteArray::number(channels) + ", row " +
                                        QByteArray::number(i);
                row(name.constData(), from, to);
            }
        }
    }
    row("one frame", formOf(2, 16, 8000, 1), formOf(2, 16, 44100));
    row("a frame that gives none", formOf(1, 16, 192000, 1), formOf(1, 8, 8000));
    row("the farthest", formOf(1, 16, 384000, 5000), formOf(1, 16, 1500));
}

void TestSoundConversion::convertsAsTheWholeAtOnce()
{
    const auto [from, to] = fetched<SampleInfo, SampleInfo>();
    const SoundSample sound = noise(from);
    const SoundConversion result = convertSound(sound, to);
    QCOMPARE(int(result.outcome), int(SoundConversion::Done));
    QVERIFY(isSameForm(result.sample, to));
    QCOMPARE(result.sample.data.size(), result.sample.frames * to.channels * to.bits / 8);
    QVERIFY(result.sample.data == (isSameForm(from, to) ? sound.data : plainly(sound, to)));
}

void TestSoundConversion::refuses_data()
{
    columns<SampleInfo, SampleInfo, int>("from", "to", "outcome");
    const SampleInfo good = formOf(2, 16, 22050, 100);
    row("no frames", formOf(2, 16, 22050, 0), good, int(SoundConversion::NoSamples));
    row("no rate", formOf(2, 16, 0, 100), good, int(SoundConversion::NoSamples));
    row("4 billion a second", formOf(2, 16, int(4000000000U), 100), good,
        int(SoundConversion::NoSamples));
    row("no channels", formOf(0, 16, 22050, 100), good, int(SoundConversion::NoSamples));
    row("no bits", formOf(2, 0, 22050, 100), good, int(SoundConversion::UnknownBits));
    row("12 bits", formOf(2, 12, 22050, 100), good, int(SoundConversion::UnknownBits));
    row("to 12 bits", good, formOf(2, 12, 22050), int(SoundConversion::UnknownBits));
    row("to no rate", good, formOf(2, 16, 0), int(SoundConversion::BadTarget));
    row("too far", formOf(1, 8, 100, 10), formOf(1, 8, 25601), int(SoundConversion::RatioTooFar));
    row("too long", formOf(1, 8, 1000, 5000000), formOf(16, 32, 192000),
        int(SoundConversion::TooLong));
    row("200 channels", formOf(200, 8, 1000, 100), formOf(200, 8, 2000),
        int(SoundConversion::Refused));
}

void TestSoundConversion::refuses()
{
    const auto [from, to, outcome] = fetched<SampleInfo, SampleInfo, int>();
    const SoundConversion result = convertSound(noise(from), to);
    QCOMPARE(int(result.outcome), outcome);
    QVERIFY(result.sample.data.isEmpty() && !soundConversionText(result.outcome).isEmpty());
}

void TestSoundConversion::takesWhatIsThere()
{
    SoundSample sound = noise(formOf(2, 24, 22050, 50));
    sound.frames = 1000;
    sound.data.chop(1);
    QCOMPARE(convertSound(sound, formOf(2, 24, 22050)).sample.data, sound.data.left(49 * 6));
    QCOMPARE(convertSound(sound, formOf(1, 24, 22050)).sample.frames, 49);
    QCOMPARE(trimSound(sound, {48, 9}).data, sound.data.mid(48 * 6, 6));
}

void TestSoundConversion::isCanceled()
{
    const SoundSample sound = noise(formOf(2, 16, 22050, 4000000));
    std::atomic<bool> stop{false};
    SoundConversion result;
    std::thread worker([&] { result = convertSound(sound, formOf(2, 16, 48000), &stop); });
    QTest::qWait(20);
    stop = true;
    worker.join();
    QCOMPARE(int(result.outcome), int(SoundConversion::Canceled));
}

void TestSoundConversion::edits_data()
{
    columns<int, int>("bits", "channels");
    for (const int bits : {8, 16, 24, 32}) {
        row((QByteArray::number(bits) + " bits").constData(), bits, bits / 8);
    }
}

void TestSoundConversion::edits()
{
    const auto [bits, channels] = fetched<int, int>();
    const SoundSample sound = noise(formOf(channels, bits, 22050, 100));
    const int frame = channels * bits / 8;
    const SoundRange part{30, 40};
    const auto valueOf = [bits = bits](const SoundSample& of, int i) {
        return double(upperBits(of, i) >> (32 - bits));
    };
    const double most = std::pow(2.0, bits - 1);

    const SoundSample silent = silenceSound(sound, part);
    QCOMPARE(peakOf(silent, part), 0.0);
    QCOMPARE(silent.data.left(30 * frame), sound.data.left(30 * frame));
    QCOMPARE(silent.data.mid(70 * frame), sound.data.mid(70 * frame));
    QCOMPARE(normalizeSound(silent, part).data, silent.data);
    QCOMPARE(mixSounds(silent, trimSound(sound, part), 30).data, sound.data);
    QCOMPARE(mixSounds(trimSound(sound, {0, 70}), trimSound(sound, {70, 30}), 70).data, sound.data);

    const SoundSample in = fadeInSound(sound, part);
    const SoundSample out = fadeOutSound(sound, part);
    const SoundSample half = normalizeSound(sound, part, 0.5);
    double least = 1;
    for (int i = 30 * channels; i < 70 * channels; ++i) {
        const int at = i / channels - 30;
        const double value = valueOf(sound, i);
        QVERIFY(std::abs(valueOf(in, i) - value * at / 40) <= 0.5);
        QVERIFY(std::abs(valueOf(out, i) - value * (39 - at) / 40) <= 0.5);
        least = std::max(least, std::abs(value));
    }
    QVERIFY(std::abs(peakOf(half, part) - 0.5) <= 2 / most);
    QVERIFY(std::abs(valueOf(half, 31 * channels) -
                     valueOf(sound, 31 * channels) * 0.5 * (most - 1) / least) <= 1);

    for (const SoundRange none :
         {SoundRange{100, 5}, SoundRange{3, 0}, SoundRange{-9, 4}, SoundRange{INT_MAX, INT_MAX}}) {
        QCOMPARE(silenceSound(sound, none).data, sound.data);
        QCOMPARE(trimSound(sound, none).data, sound.data);
    }
    QCOMPARE(silenceSound(sound, {INT_MIN, INT_MAX}).data, sound.data);
    QCOMPARE(peakOf(silenceSound(sound, {-5, INT_MAX}), wholeSound(sound)), 0.0);
    QCOMPARE(mixSounds(sound, sound, INT_MAX - 5).data, sound.data);
}

Q_DECLARE_METATYPE(SampleInfo)

QTEST_APPLESS_MAIN(TestSoundConversion)
#include "tst_soundconversion.moc"
