// Samples are converted in blocks: bytes to floats, resampling, channels, floats to bytes. The
// resampler keeps its state between blocks, so the result equals that of one large call. Blocks are
// small, so the work can be cancelled quickly at any ratio and number of channels.

#include "media/soundconversion.h"

#include "media/pcmsamples_p.h"

#include <QCoreApplication>

#include <memory>
#include <samplerate.h>
#include <vector>

namespace Zorv {

namespace {

constexpr double MostRatio = 256;
constexpr int BlockSamples = 8192;  // about a tenth of a second of sound
constexpr int LeastBlock = 16;
constexpr qint64 MostBytes = INT_MAX - 64;

struct Closer
{
    void operator()(SRC_STATE* state) const { src_delete(state); }
};

template <int Bytes>
void toFloats(const char* from, float* to, int count)
{
    if constexpr (Bytes == 1) {
        for (int i = 0; i < count; ++i) {
            to[i] = float(uchar(from[i]) / 127.5 - 1.0);
        }
    } else if constexpr (Bytes == 2 && Q_BYTE_ORDER == Q_LITTLE_ENDIAN) {
        src_short_to_float_array(reinterpret_cast<const short*>(from), to, count);
    } else {
        for (int i = 0; i < count; ++i) {
            const qint32 value =
                qint32(quint32(pcmValue<Bytes>(from + qint64(i) * Bytes)) << (32 - 8 * Bytes));
            src_int_to_float_array(&value, to + i, 1);
        }
    }
}

template <int Bytes>
void fromFloats(const float* from, char* to, int count)
{
    if constexpr (Bytes == 1) {
        for (int i = 0; i < count; ++i) {
            to[i] = char(int((std::clamp(from[i], -1.0F, 1.0F) + 1.0) * 127.5));
        }
    } else if constexpr (Bytes == 2 && Q_BYTE_ORDER == Q_LITTLE_ENDIAN) {
        src_float_to_short_array(from, reinterpret_cast<short*>(to), count);
    } else {
        for (int i = 0; i < count; ++i) {
            qint32 value = 0;
            src_float_to_int_array(from + i, &value, 1);
            setPcmValue<Bytes>(to + qint64(i) * Bytes, value >> (32 - 8 * Bytes));
        }
    }
}

class Converter
{
public:
    Converter(const SoundSample& sound, const SampleInfo& target,
              const std::atomic<bool>* isCanceled)
        : m_sound(sound), m_canceled(isCanceled), m_frames(wholeFramesOf(sound, sound.data)),
          m_ratio(double(target.sampleRate) / double(std::max(sound.sampleRate, 1)))
    {
        static_cast<SampleInfo&>(m_result) = target;
    }

    SoundConversion run();

private:
    SoundConversion::Outcome check();
    bool open();
    SoundConversion::Outcome copy();
    SoundConversion::Outcome resample();
    bool isCanceled() const { return m_canceled && m_canceled->load(std::memory_order_relaxed); }
    bool fill(int first, int count);
    void put(const float* frames, int count);
    const float* inChannels(const float* frames, int count);

    const SoundSample& m_sound;
    const std::atomic<bool>* m_canceled;
    int m_frames;
    double m_ratio;
    int m_block = 0;  // frames
    int m_done = 0;   // frames of the result
    SoundSample m_result;
    std::unique_ptr<SRC_STATE, Closer> m_state;
    std::vector<float> m_in;
    std::vector<float> m_out;
    std::vector<float> m_mixed;
};

SoundConversion::Outcome Converter::check()
{
    const auto isKnown = [](int bits) { return withSampleBytes(bits, [](auto) {}); };
    if (m_sound.channels == 0 || m_sound.sampleRate <= 0) {
        return SoundConversion::NoSamples;
    }
    if (!isKnown(m_sound.bits) || !isKnown(m_result.bits)) {
        return SoundConversion::UnknownBits;
    }
    if (m_frames == 0) {
        return SoundConversion::NoSamples;
    }
    if (m_result.channels == 0 || m_result.sampleRate <= 0) {
        return SoundConversion::BadTarget;
    }
    if (m_ratio > MostRatio || m_ratio < 1 / MostRatio) {
        return SoundConversion::RatioTooFar;
    }
    const double frames = std::max(double(m_frames) * m_ratio, 1.0);
    if (frames * frameBytesOf(m_result) > double(MostBytes)) {
        return SoundConversion::TooLong;
    }
    m_result.frames = int(frames);
    return SoundConversion::Done;
}

bool Converter::open()
{
    m_block = std::max(
        int(BlockSamples * std::min(m_ratio, 1.0) / std::max(m_sound.channels, m_result.channels)),
        LeastBlock);
    const auto room = size_t(m_block);
    m_in.resize(room * m_sound.channels);
    m_mixed.resize(room * m_result.channels);
    if (m_sound.sampleRate == m_result.sampleRate) {
        return true;
    }
    m_out.resize(room * m_sound.channels);
    int error = 0;
    m_state.reset(src_new(SRC_SINC_BEST_QUALITY, m_sound.channels, &error));
    return m_state != nullptr;
}

SoundConversion Converter::run()
{
    SoundConversion::Outcome outcome = check();
    if (outcome == SoundConversion::Done && isSameForm(m_sound, m_result)) {
        m_result = m_sound;
        m_result.frames = m_frames;
        m_result.data.truncate(m_frames * frameBytesOf(m_sound));
        return {outcome, m_result};
    }
    if (outcome == SoundConversion::Done && !open()) {
        outcome = SoundConversion::Refused;
    }
    if (outcome == SoundConversion::Done) {
        m_result.data.resize(m_result.frames * frameBytesOf(m_result));
        outcome = m_state ? resample() : copy();
    }
    return {outcome, outcome == SoundConversion::Done ? m_result : SoundSample()};
}

bool Converter::fill(int first, int count)
{
    const char* from = m_sound.data.constData() + qint64(first) * frameBytesOf(m_sound);
    return withSampleBytes(m_sound.bits, [&](auto bytes) {
        toFloats<decltype(bytes)::value>(from, m_in.data(), count * m_sound.channels);
    });
}

/// Several channels become any other number as copies of their mean.
const float* Converter::inChannels(const float* frames, int count)
{
    const int from = m_sound.channels;
    const int to = m_result.channels;
    if (from == to) {
        return frames;
    }
    const float part = 1.0F / float(from);
    float* mixed = m_mixed.data();
    for (int i = 0; i < count; ++i, frames += from) {
        float sum = 0;
        for (int channel = 0; channel < from; ++channel) {
            sum += frames[channel];
        }
        mixed = std::fill_n(mixed, to, sum * part);
    }
    return m_mixed.data();
}

void Converter::put(const float* frames, int count)
{
    const float* mixed = inChannels(frames, count);
    char* to = m_result.data.data() + qint64(m_done) * frameBytesOf(m_result);
    withSampleBytes(m_result.bits, [&](auto bytes) {
        fromFloats<decltype(bytes)::value>(mixed, to, count * m_result.channels);
    });
    m_done += count;
}

SoundConversion::Outcome Converter::copy()
{
    for (int first = 0; first < m_frames; first += m_block) {
        if (isCanceled()) {
            return SoundConversion::Canceled;
        }
        const int count = std::min(m_block, m_frames - first);
        fill(first, count);
        put(m_in.data(), count);
    }
    return SoundConversion::Done;
}

SoundConversion::Outcome Converter::resample()
{
    int first = 0;  // first frame not yet given to the converter
    SRC_DATA work{};
    work.src_ratio = m_ratio;
    while (m_done < m_result.frames) {
        if (isCanceled()) {
            return SoundConversion::Canceled;
        }
        if (work.input_frames == 0 && first < m_frames) {
            work.input_frames = std::min(m_block, m_frames - first);
            fill(first, int(work.input_frames));
            work.data_in = m_in.data();
            first += int(work.input_frames);
            work.end_of_input = int(first == m_frames);
        }
        work.data_out = m_out.data();
        work.output_frames = std::min(m_block, m_result.frames - m_done);
        if (src_process(m_state.get(), &work) != 0) {
            return SoundConversion::Refused;
        }
        put(m_out.data(), int(work.output_frames_gen));
        work.data_in += work.input_frames_used * m_sound.channels;
        work.input_frames -= work.input_frames_used;
        if (work.output_frames_gen == 0 && work.input_frames_used == 0 && first == m_frames) {
            break;
        }
    }
    std::fill(m_out.begin(), m_out.end(), 0.0F);
    while (m_done < m_result.frames) {
        put(m_out.data(), std::min(m_block, m_result.frames - m_done));
    }
    return SoundConversion::Done;
}

}  // namespace

SoundConversion convertSound(const SoundSample& sound, const SampleInfo& target,
                             const std::atomic<bool>* isCanceled)
{
    return Converter(sound, target, isCanceled).run();
}

QString soundConversionText(SoundConversion::Outcome outcome)
{
    const char* text = "";
    switch (outcome) {
    case SoundConversion::Done:
    case SoundConversion::Canceled:
        return {};
    case SoundConversion::NoSamples:
        text = QT_TRANSLATE_NOOP("Zorv::SoundConversion",
                                 "The sound has no frames, no sample rate or no channels.");
        break;
    case SoundConversion::UnknownBits:
        text = QT_TRANSLATE_NOOP("Zorv::SoundConversion",
                                 "Only samples of 8, 16, 24 or 32 bits can be converted.");
        break;
    case SoundConversion::BadTarget:
        text = QT_TRANSLATE_NOOP("Zorv::SoundConversion",
                                 "A sample rate and channels to convert to are needed.");
        break;
    case SoundConversion::RatioTooFar:
        text = QT_TRANSLATE_NOOP(
            "Zorv::SoundConversion",
            "The sample rates are too far apart: one is more than 256 times the other.");
        break;
    case SoundConversion::TooLong:
        text = QT_TRANSLATE_NOOP("Zorv::SoundConversion",
                                 "The result would have more than two gigabytes.");
        break;
    case SoundConversion::Refused:
        text = QT_TRANSLATE_NOOP("Zorv::SoundConversion",
                                 "The sound has too many channels for another sample rate.");
        break;
    }
    return QCoreApplication::translate("Zorv::SoundConversion", text);
}

bool isSameForm(const SampleInfo& a, const SampleInfo& b)
{
    return a.channels == b.channels && a.bits == b.bits && a.sampleRate == b.sampleRate;
}

}  // namespace Zorv
