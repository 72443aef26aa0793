// Resampling of sounds against the converter alone on the same floats, and on two threads.

#include "media/soundconversion.h"
#include "support/bench.h"

#include <QRandomGenerator>
#include <QThreadPool>
#include <QtConcurrent>

#include <functional>
#include <samplerate.h>

using namespace Zorv;

namespace {

const int Rounds = 7;
const int Sounds = 10;

SoundSample noise(int channels, int seconds)
{
    QRandomGenerator random(3);
    SoundSample sound;
    sound.channels = quint16(channels);
    sound.bits = 16;
    sound.sampleRate = 22050;
    sound.frames = seconds * 22050;
    sound.data.resize(sound.frames * channels * 2);
    std::generate(sound.data.begin(), sound.data.end(), [&] { return char(random.generate()); });
    return sound;
}

void againstConverter(int channels, int rate)
{
    const SoundSample sound = noise(channels, 4);
    SampleInfo target = sound;
    target.sampleRate = rate;
    std::vector<float> in(size_t(sound.frames * channels));
    src_short_to_float_array(reinterpret_cast<const short*>(sound.data.constData()), in.data(),
                             int(in.size()));
    SRC_DATA work{};
    work.src_ratio = double(rate) / sound.sampleRate;
    work.input_frames = sound.frames;
    work.output_frames = long(sound.frames * work.src_ratio);
    std::vector<float> out(size_t(work.output_frames * channels));
    work.data_in = in.data();
    work.data_out = out.data();
    const double ratio = Bench::pairedRatio(
        Rounds, [&] { convertSound(sound, target); },
        [&] { src_simple(&work, SRC_SINC_BEST_QUALITY, channels); });
    const QByteArray name = "22050 to " + QByteArray::number(rate) + ", " +
                            QByteArray::number(channels) + " channel(s), to src_simple";
    Bench::ratio(name.constData(), ratio, 1, 1.05);
}

void onTwoThreads()
{
    const QVector<SoundSample> sounds(Sounds, noise(1, 1));
    SampleInfo target = sounds.first();
    target.sampleRate = 48000;
    const std::function<int(const SoundSample&)> length = [&](const SoundSample& sound) {
        return convertSound(sound, target).sample.frames;
    };
    const auto convert = [&](int threads) {
        QThreadPool::globalInstance()->setMaxThreadCount(threads);
        QtConcurrent::blockingMapped<QVector<int>>(sounds, length);
    };
    Bench::ratio("ten sounds on two threads, to one",
                 Bench::pairedRatio(
                     Rounds, [&] { convert(2); }, [&] { convert(1); }),
                 1, 0.65);
}

}  // namespace

int main()
{
    for (const int rate : {11025, 44100, 48000}) {
        againstConverter(1, rate);
        againstConverter(2, rate);
    }
    onTwoThreads();
    return 0;
}
