#pragma once

#include "media/soundsample.h"
#include "zorv_export.h"

class QIODevice;

namespace Zorv {

/// The contents of a WAV file, found chunk by chunk instead of by the sizes in its header, which
/// can be wrong: a recorder that does not know the length in advance leaves the sizes of an empty
/// sound, 0, or the largest number. `soundFromWAV()` trusts those sizes.
struct WaveContents
{
    quint16 formatTag = 0;  ///< 1 for PCM, 65534 for extensible; 0 if this is no WAV file
    SampleInfo info;        ///< format of all existing samples; meaningful for PCM
    qint32 reached = 0;     ///< frames that `soundFromWAV()` returns, if `info` has any
    qint64 missing = 0;     ///< frames that the file declares but lacks: it is truncated
};

/// Reads all chunk headers up to the samples, but no samples. The device must be open and at the
/// start of the file. If it is not sequential, its position is restored.
ZORV_EXPORT WaveContents waveContents(QIODevice* device);

/// Reads all existing samples, unlike `soundFromWAV()`, which follows the declared sizes. If no
/// size fits, the samples extend to the end of the file. Empty if it is not PCM. The device must be
/// open.
ZORV_EXPORT SoundSample wholeSoundFromWAV(QIODevice* device);

}  // namespace Zorv
