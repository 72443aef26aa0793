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
///
/// Each gives a changed copy. A range is cut to the frames that are there; with an empty one, and
/// for other samples than of 8, 16, 24 or 32 bits, the copy is the sound itself. Any thread.
/// @{

/// The frames that are there: as many as are declared, and no more than the data has.
ZORV_EXPORT SoundRange wholeSound(const SoundSample& sound);

/// The part alone.
ZORV_EXPORT SoundSample trimSound(const SoundSample& sound, SoundRange range);

/// The part becomes louder from silence on, or softer until silence, evenly.
ZORV_EXPORT SoundSample fadeInSound(const SoundSample& sound, SoundRange range);
ZORV_EXPORT SoundSample fadeOutSound(const SoundSample& sound, SoundRange range);

ZORV_EXPORT SoundSample silenceSound(const SoundSample& sound, SoundRange range);

/// The part as loud as it can be: its greatest value becomes `peak`, above 0 to 1 for the greatest
/// that there is. A silent part stays silent.
ZORV_EXPORT SoundSample normalizeSound(const SoundSample& sound, SoundRange range,
                                       double peak = 1.0);

/// Adds another sound of the same form from a frame on, 0 or more; the result is as long as both
/// need, and what is too loud is cut off. The sound itself if the form is another one or the
/// result would be too long.
ZORV_EXPORT SoundSample mixSounds(const SoundSample& sound, const SoundSample& other, int at);

/// The part from the first frame to the last that has a value above a level, 0 to 1; empty for
/// none.
ZORV_EXPORT SoundRange audiblePart(const SoundSample& sound, double level);

/// The greatest value of a part, 0 to 1.
ZORV_EXPORT double peakOf(const SoundSample& sound, SoundRange range);
/// @}

}  // namespace Zorv
