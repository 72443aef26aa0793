#pragma once

#include "media/soundsample.h"
#include "zorv_export.h"

namespace Zorv {

/// A part of a sound, in frames.
struct SoundRange
{
    int first = 0;
    int count = 0;

    bool isEmpty() const { return count <= 0; }
    bool operator==(const SoundRange& other) const
    {
        return first == other.first && count == other.count;
    }
    bool operator!=(const SoundRange& other) const { return !(*this == other); }
};

/// @name Edits of a sound
/// Each function returns a changed copy. A range is clipped to the existing frames. With an empty
/// range, or samples not of 8, 16, 24 or 32 bits, the copy is unchanged. Any thread.
/// @{

/// The existing frames: the declared number, but no more than the data has.
ZORV_EXPORT SoundRange wholeSound(const SoundSample& sound);

/// Keeps only the range.
ZORV_EXPORT SoundSample trimSound(const SoundSample& sound, SoundRange range);

/// Fades the range linearly in from silence or out to silence.
ZORV_EXPORT SoundSample fadeInSound(const SoundSample& sound, SoundRange range);
ZORV_EXPORT SoundSample fadeOutSound(const SoundSample& sound, SoundRange range);

ZORV_EXPORT SoundSample silenceSound(const SoundSample& sound, SoundRange range);

/// Scales the range so that its greatest value becomes `peak`: above 0, up to 1 for full scale. A
/// silent range stays silent.
ZORV_EXPORT SoundSample normalizeSound(const SoundSample& sound, SoundRange range,
                                       double peak = 1.0);

/// Mixes another sound in, starting at frame `at`, 0 or more. The result is as long as both need;
/// values that are too loud are clipped. Returns the sound unchanged if the formats differ or the
/// result would be too long.
ZORV_EXPORT SoundSample mixSounds(const SoundSample& sound, const SoundSample& other, int at);

/// The range from the first to the last frame with a value above a level, 0 to 1; empty if there is
/// none.
ZORV_EXPORT SoundRange audiblePart(const SoundSample& sound, double level);

/// The greatest value of a range, 0 to 1.
ZORV_EXPORT double peakOf(const SoundSample& sound, SoundRange range);
/// @}

}  // namespace Zorv
