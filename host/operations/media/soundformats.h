#pragma once

#include <zorv/media/soundsample.h>

#include <QString>

class QByteArray;
class QIODevice;

namespace Operations {

/// Registers the suffixes that `decodeSound()` supports with the library, so that file dialogs
/// offer them. Call it once. Main thread only.
void registerSoundFormats();

/// True for the suffixes of FLAC and Ogg files, in upper case: "FLAC", "OGG", "OGA", "OPUS".
bool isDecodedFormat(const QByteArray& format);

/// Reads FLAC, Ogg Vorbis and Ogg Opus, and the WAV files that `Zorv::soundFromWAV()` does not
/// support: the extensible format, and float, A-law or mu-law samples. PCM of 8 to 32 bits keeps
/// its width; everything else is decoded to 16 bits.
///
/// Returns nothing, with `error` as the end of a sentence, for any other file, and for a file that
/// declares more than a gigabyte of samples. A truncated file returns what it has; `missing`
/// receives the number of frames that it lacks. Memory is only allocated for samples that exist.
/// The device must be seekable and be at its start. Any thread.
Zorv::SoundSample decodeSound(QIODevice* device, QString* error, qint64* missing = nullptr);

}  // namespace Operations
