#pragma once

#include <zorv/media/soundsample.h>

#include <QString>

class QByteArray;
class QIODevice;

namespace Operations {

/// Makes what `decodeSound()` reads known to the library, as extensions of their suffixes, so that
/// the dialogs of the window offer them. Once is enough. Main thread only.
void registerSoundFormats();

/// True for the suffixes of FLAC and Ogg files, in capitals: "FLAC", "OGG", "OGA", "OPUS".
bool isDecodedFormat(const QByteArray& format);

/// Reads FLAC, Ogg Vorbis and Ogg Opus, and the WAV files that `Zorv::soundFromWAV()` leaves: those
/// in the extensible form, and with samples that are floats, A-law or mu-law. Plain numbers of 8 to
/// 32 bits come as they are, all else as 16 bits.
///
/// Nothing, with `error` as the end of a sentence, for any other file, and for one that declares
/// more than a gigabyte of samples. One that is cut short gives what it has, and `missing` the
/// frames that it lacks. Memory is taken for samples that are there. The device can seek and stands
/// at the start. Any thread.
Zorv::SoundSample decodeSound(QIODevice* device, QString* error, qint64* missing = nullptr);

}  // namespace Operations
