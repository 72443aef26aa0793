#pragma once

#include "media/soundsample.h"
#include "zorv_export.h"

class QDataStream;
class QIODevice;

namespace Zorv {

/// The header of a WAV file.
struct WaveRIFFHeader
{
    char id[4];
    quint32 size;  ///< of everything that follows
    char format[4];
};

/// The chunk with the format of the samples.
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

/// The header of the chunk with the samples.
struct WaveDataHeader
{
    char id[4];
    quint32 size;
};

/// Read and write the headers field by field. The stream must be little-endian.
ZORV_EXPORT QDataStream& operator>>(QDataStream& stream, WaveRIFFHeader& header);
ZORV_EXPORT QDataStream& operator>>(QDataStream& stream, WaveFormatHeader& header);
ZORV_EXPORT QDataStream& operator>>(QDataStream& stream, WaveDataHeader& header);
ZORV_EXPORT QDataStream& operator<<(QDataStream& stream, const WaveRIFFHeader& header);
ZORV_EXPORT QDataStream& operator<<(QDataStream& stream, const WaveFormatHeader& header);
ZORV_EXPORT QDataStream& operator<<(QDataStream& stream, const WaveDataHeader& header);

/// The format of the sound in a WAV file; all zero unless it is PCM. `frames` is 0 if the byte rate
/// is 0. This function and the two below open a closed device.
ZORV_EXPORT SampleInfo soundInfoFromWAV(QIODevice* device);

/// Reads a PCM WAV file; empty if it is not one. Sizes beyond the end of the file are cut. Chunks
/// between format and samples are skipped.
ZORV_EXPORT SoundSample soundFromWAV(QIODevice* device);

/// Writes a WAV file with the samples unchanged. False if the device cannot be opened or written.
ZORV_EXPORT bool soundToWAV(const SoundSample& sample, QIODevice* device);

}  // namespace Zorv
