// Level 0 has the extremes of blocks of 128 frames. Each higher level merges eight blocks of the
// level below. A query combines the largest aligned blocks that fit with the single frames at both
// ends.
//
// Level 0 is built in one pass that is as fast as reading the bytes. With 1, 2, 4 and so on
// channels, each group of 32 values has the same channel order as the next. So the compiler can
// vectorize the comparison of 32 values with the next 32.

#include "editors/sound/wavepyramid_p.h"

#include "media/pcmsamples_p.h"

#include <cstring>

namespace Zorv {

namespace {

constexpr int BlockFrames = 128;
constexpr int Fan = 8;
constexpr int Lanes = 32;

void include(WavePyramid::Extremes* found, const WavePyramid::Extremes& more)
{
    found->least = std::min(found->least, more.least);
    found->greatest = std::max(found->greatest, more.greatest);
}

constexpr WavePyramid::Extremes Nothing{INT_MAX, INT_MIN};

/// 20-bit samples are stored in the bytes of 24 bits.
int storedBits(int bits)
{
    return bits == 20 ? 24 : bits;
}

template <class Value>
void lanesOf(const char* data, int count, int channels, int bias, WavePyramid::Extremes* result)
{
    Value least[Lanes];
    Value greatest[Lanes];
    std::memcpy(least, data, sizeof least);
    std::memcpy(greatest, data, sizeof greatest);
    for (int i = Lanes; i < count; i += Lanes) {
        Value values[Lanes];
        std::memcpy(values, data + size_t(i) * sizeof(Value), sizeof values);
        for (int lane = 0; lane < Lanes; ++lane) {
            least[lane] = std::min(least[lane], values[lane]);
            greatest[lane] = std::max(greatest[lane], values[lane]);
        }
    }
    for (int lane = 0; lane < Lanes; ++lane) {
        include(result + lane % channels, {least[lane] - bias, greatest[lane] - bias});
    }
}

}  // namespace

WavePyramid::WavePyramid(const SoundSample& sound)
    : m_info(sound), m_data(sound.data), m_frameBytes(frameBytesOf(sound))
{
    if (withSampleBytes(storedBits(sound.bits), [](auto) {})) {
        m_frames = wholeFramesOf(sound, sound.data);
    }
    buildBase();
    buildLevels();
}

qint32 WavePyramid::value(int frame, int channel) const
{
    qint32 result = 0;
    withSampleBytes(storedBits(m_info.bits), [&](auto bytes) {
        constexpr int Size = decltype(bytes)::value;
        const qint64 at = qint64(frame) * m_frameBytes + qint64(channel) * m_info.bits / 8;
        if (frame >= 0 && channel >= 0 && at + Size <= m_data.size()) {
            result = pcmValue<Size>(m_data.constData() + at);
        }
    });
    return result;
}

/// Stores only whole blocks.
void WavePyramid::buildBase()
{
    const int channels = m_info.channels;
    const int blocks = m_frames / BlockFrames;
    if (blocks == 0) {
        return;
    }
    QVector<Extremes> base(blocks * channels, Nothing);
    const bool isEven = Q_BYTE_ORDER == Q_LITTLE_ENDIAN && Lanes % channels == 0;
    for (int block = 0; block < blocks; ++block) {
        Extremes* to = base.data() + block * channels;
        const char* from = m_data.constData() + qint64(block) * BlockFrames * m_frameBytes;
        const int count = BlockFrames * channels;
        if (isEven && m_info.bits == 16) {
            lanesOf<qint16>(from, count, channels, 0, to);
        } else if (isEven && m_info.bits == 8) {
            lanesOf<quint8>(from, count, channels, 128, to);
        } else if (isEven && m_info.bits == 32) {
            lanesOf<qint32>(from, count, channels, 0, to);
        } else {
            for (int channel = 0; channel < channels; ++channel) {
                widen(to + channel, channel, block * BlockFrames, (block + 1) * BlockFrames);
            }
        }
    }
    m_levels.append(base);
}

void WavePyramid::buildLevels()
{
    const int channels = m_info.channels;
    while (!m_levels.isEmpty() && m_levels.last().size() / channels >= Fan) {
        const QVector<Extremes>& below = m_levels.last();
        const int blocks = below.size() / channels / Fan;
        QVector<Extremes> level(blocks * channels, Nothing);
        for (int i = 0; i < blocks * Fan * channels; ++i) {
            include(&level[i / channels / Fan * channels + i % channels], below[i]);
        }
        m_levels.append(level);
    }
}

void WavePyramid::widen(Extremes* found, int channel, int first, int end) const
{
    withSampleBytes(storedBits(m_info.bits), [&](auto bytes) {
        constexpr int Size = decltype(bytes)::value;
        const char* start = m_data.constData() + qint64(channel) * m_info.bits / 8;
        const char* stop = m_data.constData() + m_data.size() - Size;
        for (int frame = first; frame < end; ++frame) {
            const char* at = start + qint64(frame) * m_frameBytes;
            if (at <= stop) {
                const qint32 value = pcmValue<Size>(at);
                include(found, {value, value});
            }
        }
    });
}

WavePyramid::Extremes WavePyramid::extremes(int channel, int first, int end) const
{
    first = std::max(first, 0);
    end = std::min(end, m_frames);
    if (first >= end || channel < 0 || channel >= m_info.channels) {
        return {};
    }
    Extremes found = Nothing;
    int low = (first + BlockFrames - 1) / BlockFrames;
    int high = end / BlockFrames;
    if (low >= high) {
        widen(&found, channel, first, end);
        return found;
    }
    widen(&found, channel, first, low * BlockFrames);
    widen(&found, channel, high * BlockFrames, end);
    for (int level = 0; low < high; ++level, low /= Fan, high /= Fan) {
        const QVector<Extremes>& blocks = m_levels[level];
        const auto take = [&](int block) {
            include(&found, blocks[block * m_info.channels + channel]);
        };
        const bool isTop = level == m_levels.size() - 1;
        while (low < high && (isTop || low % Fan != 0)) {
            take(low++);
        }
        while (low < high && high % Fan != 0) {
            take(--high);
        }
    }
    return found;
}

}  // namespace Zorv
