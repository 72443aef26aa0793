#pragma once

#include "media/soundsample.h"
#include "zorv_export.h"

class QIODevice;

namespace Zorv {

/// What a WAV file holds, found chunk by chunk, for the sizes in its head can be wrong: a program
/// that records without an end leaves those of an empty sound, 0 or the largest number there.
/// `soundFromWAV()` believes them.
struct WaveContents
{
    quint16 formatTag = 0;  ///< 1 for PCM, 65534 for the extensible form; 0 for no WAV file
    SampleInfo info;        ///< of all samples that are there; of meaning for PCM
    qint32 reached = 0;     ///< frames that `soundFromWAV()` gives, if `info` has any
    qint64 missing = 0;     ///< frames that the file declares and lacks, as it is cut short
};

/// Looks at the heads of all chunks up to the samples, and at no sample. The device is open and
/// stands where the file begins, and does so afterwards if it is not sequential.
ZORV_EXPORT WaveContents waveContents(QIODevice* device);

/// Reads all samples that are there, where `soundFromWAV()` gives those that the sizes lead to.
/// Without a size that fits they go on to the end of the file. Empty without PCM. The device is
/// open.
ZORV_EXPORT SoundSample wholeSoundFromWAV(QIODevice* device);

}  // namespace Zorv
