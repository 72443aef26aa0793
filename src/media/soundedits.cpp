#include "media/soundedits.h"

#include "media/pcmsamples_p.h"
#include "media/soundconversion.h"

#include <cmath>

namespace Zorv {

namespace {

SoundRange cut(const SoundSample& sound, SoundRange range)
{
    const qint64 frames = wholeFramesOf(sound, sound.data);
    const qint64 first = std::clamp<qint64>(range.first, 0, frames);
    const qint64 end =
        std::clamp<qint64>(qint64(range.first) + std::max(range.count, 0), first, frames);
    return {int(first), int(end - first)};
}

/// Replaces each value of a range by the result of `change`, which gets the value and its frame
/// within the range.
template <class Change>
SoundSample changed(const SoundSample& sound, SoundRange range, Change change)
{
    const SoundRange part = cut(sound, range);
    SoundSample result = sound;
    if (part.isEmpty()) {
        return result;
    }
    withSampleBytes(sound.bits, [&](auto bytes) {
        constexpr int Size = decltype(bytes)::value;
        constexpr double Most = mostPcmValue<Size>();
        char* to = result.data.data() + qint64(part.first) * frameBytesOf(sound);
        for (int frame = 0; frame < part.count; ++frame) {
            for (int channel = 0; channel < sound.channels; ++channel, to += Size) {
                const double value = change(double(pcmValue<Size>(to)), frame, part.count, Most);
                setPcmValue<Size>(to, qint32(std::clamp(std::round(value), -Most - 1, Most)));
            }
        }
    });
    return result;
}

/// In units of the sound's own samples.
double greatestOf(const SoundSample& sound, SoundRange range, double* most)
{
    const SoundRange part = cut(sound, range);
    qint64 greatest = 0;
    withSampleBytes(sound.bits, [&](auto bytes) {
        constexpr int Size = decltype(bytes)::value;
        *most = double(mostPcmValue<Size>());
        const char* from = sound.data.constData() + qint64(part.first) * frameBytesOf(sound);
        const char* end = from + qint64(part.count) * frameBytesOf(sound);
        for (; from != end; from += Size) {
            greatest = std::max(greatest, std::abs(qint64(pcmValue<Size>(from))));
        }
    });
    return double(greatest);
}

}  // namespace

SoundRange wholeSound(const SoundSample& sound)
{
    return {0, wholeFramesOf(sound, sound.data)};
}

SoundSample trimSound(const SoundSample& sound, SoundRange range)
{
    const SoundRange part = cut(sound, range);
    SoundSample result = sound;
    if (!part.isEmpty()) {
        const int bytes = frameBytesOf(sound);
        result.data = sound.data.mid(part.first * bytes, part.count * bytes);
        result.frames = part.count;
    }
    return result;
}

SoundSample fadeInSound(const SoundSample& sound, SoundRange range)
{
    return changed(sound, range, [](double value, int frame, int count, double) {
        return value * frame / count;
    });
}

SoundSample fadeOutSound(const SoundSample& sound, SoundRange range)
{
    return changed(sound, range, [](double value, int frame, int count, double) {
        return value * (count - 1 - frame) / count;
    });
}

SoundSample silenceSound(const SoundSample& sound, SoundRange range)
{
    return changed(sound, range, [](double, int, int, double) { return 0.0; });
}

SoundSample normalizeSound(const SoundSample& sound, SoundRange range, double peak)
{
    double full = 0;
    const double greatest = greatestOf(sound, range, &full);
    if (greatest <= 0) {
        return sound;
    }
    const double gain = peak * full / greatest;
    return changed(sound, range, [gain](double value, int, int, double) { return value * gain; });
}

SoundSample mixSounds(const SoundSample& sound, const SoundSample& other, int at)
{
    const int bytes = frameBytesOf(sound);
    const int own = wholeFramesOf(sound, sound.data);
    const int added = wholeFramesOf(other, other.data);
    const qint64 frames = std::max<qint64>(own, qint64(at) + added);
    if (!isSameForm(sound, other) || at < 0 || bytes == 0 || frames > (INT_MAX - 64) / bytes) {
        return sound;
    }
    SoundSample result = sound;
    result.frames = int(frames);
    result.data.truncate(own * bytes);
    result.data.append(QByteArray((result.frames - own) * bytes, sound.bits == 8 ? '\x80' : '\0'));
    const char* from = other.data.constData();
    withSampleBytes(sound.bits, [&](auto size) {
        constexpr int Size = decltype(size)::value;
        constexpr qint64 Most = mostPcmValue<Size>();
        char* to = result.data.data() + qint64(at) * bytes;
        for (qint64 i = 0; i < qint64(added) * sound.channels; ++i, to += Size, from += Size) {
            const qint64 sum = qint64(pcmValue<Size>(to)) + pcmValue<Size>(from);
            setPcmValue<Size>(to, qint32(std::clamp(sum, -Most - 1, Most)));
        }
    });
    return result;
}

SoundRange audiblePart(const SoundSample& sound, double level)
{
    const int frames = wholeFramesOf(sound, sound.data);
    const qint64 values = qint64(frames) * sound.channels;
    qint64 first = values;
    qint64 last = -1;
    withSampleBytes(sound.bits, [&](auto bytes) {
        constexpr int Size = decltype(bytes)::value;
        const char* data = sound.data.constData();
        const auto isAudible = [=](qint64 i) {
            return std::abs(double(pcmValue<Size>(data + i * Size))) > level * mostPcmValue<Size>();
        };
        for (first = 0; first < values && !isAudible(first); ++first) {
        }
        for (last = values - 1; last > first && !isAudible(last); --last) {
        }
    });
    if (first >= values || sound.channels == 0) {
        return {};
    }
    const int begin = int(first / sound.channels);
    return {begin, int(last / sound.channels) - begin + 1};
}

double peakOf(const SoundSample& sound, SoundRange range)
{
    double full = 1;
    const double greatest = greatestOf(sound, range, &full);
    return std::min(greatest / full, 1.0);
}

}  // namespace Zorv
