#pragma once

#include "media/soundsample.h"
#include "zorv_export.h"

class QDataStream;
class QIODevice;

namespace Zorv {

/// The head of a WAV file.
struct WaveRIFFHeader
{
    char id[4];
    quint32 size;  ///< of all that follows
    char format[4];
};

/// The chunk that tells the form of the samples.
struct WaveFormatHeader
{
    char id[4];
    quint32 size;
    quint16 formatTag;  ///< 1 for PCM
    quint16 channels;
    quint32 sampleRate;
    quint32 byteRate;
    quint16 blockAlign;
    quint16 bitsPerSample;
};

/// The head of the chunk that holds the samples.
struct WaveDataHeader
{
    char id[4];
    quint32 size;
};

/// Read and write the headers field by field. The stream has to be little-endian.
ZORV_EXPORT QDataStream& operator>>(QDataStream& stream, WaveRIFFHeader& header);
ZORV_EXPORT QDataStream& operator>>(QDataStream& stream, WaveFormatHeader& header);
ZORV_EXPORT QDataStream& operator>>(QDataStream& stream, WaveDataHeader& header);
ZORV_EXPORT QDataStream& operator<<(QDataStream& stream, const WaveRIFFHeader& header);
ZORV_EXPORT QDataStream& operator<<(QDataStream& stream, const WaveFormatHeader& header);
ZORV_EXPORT QDataStream& operator<<(QDataStream& stream, const WaveDataHeader& header);

/// The form of the sound in a WAV file; all zero unless it is PCM. `frames` is 0 for a byte
/// rate of 0. A closed device is opened, as in the two below.
ZORV_EXPORT SampleInfo soundInfoFromWAV(QIODevice* device);

/// Reads a WAV file with PCM; empty if it is none. Sizes that the file does not have
/// are cut to what is there. The chunks between form and samples are passed over.
ZORV_EXPORT SoundSample soundFromWAV(QIODevice* device);

/// Writes a WAV file, with the samples as they are. False if the device cannot be opened or
/// written.
ZORV_EXPORT bool soundToWAV(const SoundSample& sample, QIODevice* device);

}  // namespace Zorv
