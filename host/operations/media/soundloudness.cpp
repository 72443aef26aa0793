#include "operations/media/soundloudness.h"

#include <zorv/media/soundedits.h>

#include <QCoreApplication>
#include <algorithm>
#include <cmath>
#include <ebur128.h>
#include <limits>
#include <memory>
#include <vector>

namespace Operations {

namespace {

constexpr int BlockFrames = 8192;

/// Frames of silence that flush the interpolation filter at the end of a sound.
constexpr int FilterFrames = 64;

/// Makes the texts of this file known to translators.
class Text
{
    Q_DECLARE_TR_FUNCTIONS(Operations::SoundLoudness)
};

struct Closer
{
    void operator()(ebur128_state* state) const { ebur128_destroy(&state); }
};

/// A sample in the upper bits of a 32-bit number.
int upperBits(const char* sample, int bytes)
{
    quint32 value = 0;
    for (int i = 0; i < bytes; ++i) {
        value = value >> 8 | quint32(uchar(sample[i])) << 24;
    }
    return int(bytes == 1 ? value ^ 0x80000000U : value);
}

void addFrames(ebur128_state* state, const Zorv::SoundSample& sound, int frames)
{
    const int bytes = sound.bits / 8;
    const char* from = sound.data.constData();
    std::vector<int> block(size_t(BlockFrames) * sound.channels);
    for (int first = 0; first < frames; first += BlockFrames) {
        const int count = std::min(BlockFrames, frames - first);
        for (int i = 0; i < count * sound.channels; ++i, from += bytes) {
            block[size_t(i)] = upperBits(from, bytes);
        }
        ebur128_add_frames_int(state, block.data(), size_t(count));
    }
}

double truePeakOf(ebur128_state* state, int channels)
{
    const std::vector<int> silence(size_t(FilterFrames * channels));
    ebur128_add_frames_int(state, silence.data(), FilterFrames);
    double greatest = 0;
    for (int channel = 0; channel < channels; ++channel) {
        double peak = 0;
        ebur128_true_peak(state, unsigned(channel), &peak);
        greatest = std::max(greatest, peak);
    }
    return greatest;
}

}  // namespace

SoundLoudness loudnessOf(const Zorv::SoundSample& sound)
{
    SoundLoudness loudness;
    const bool isBroken = sound.frames > 0 && sound.data.isEmpty();
    const bool isKnown = !isBroken && sound.bits >= 8 && sound.bits <= 32 && sound.bits % 8 == 0;
    const int frames = Zorv::wholeSound(sound).count;
    const std::unique_ptr<ebur128_state, Closer> state(
        isKnown && sound.sampleRate > 0 && sound.channels > 0
            ? ebur128_init(sound.channels, unsigned(sound.sampleRate),
                           EBUR128_MODE_I | EBUR128_MODE_TRUE_PEAK)
            : nullptr);
    if (!state) {
        return loudness;
    }
    addFrames(state.get(), sound, frames);
    ebur128_loudness_global(state.get(), &loudness.integrated);
    loudness.samplePeak = Zorv::peakOf(sound, Zorv::wholeSound(sound));
    loudness.truePeak = std::max(truePeakOf(state.get(), sound.channels), loudness.samplePeak);
    // A measuring block is 0.4 seconds long.
    if (qint64(frames) * 10 < qint64(sound.sampleRate) * 4) {
        loudness.outcome = SoundLoudness::TooShort;
    } else {
        loudness.outcome =
            std::isfinite(loudness.integrated) ? SoundLoudness::Measured : SoundLoudness::Silent;
    }
    return loudness;
}

QString loudnessText(SoundLoudness::Outcome outcome)
{
    switch (outcome) {
    case SoundLoudness::Measured:
        return {};
    case SoundLoudness::TooShort:
        return Text::tr("too short");
    case SoundLoudness::Silent:
        return Text::tr("silent");
    case SoundLoudness::Unmeasured:
        return Text::tr("not to be measured");
    }
    return {};
}

double decibelsOf(double factor)
{
    return factor > 0 ? 20 * std::log10(factor) : -std::numeric_limits<double>::infinity();
}

double factorOf(double decibels)
{
    return std::pow(10.0, decibels / 20);
}

}  // namespace Operations
