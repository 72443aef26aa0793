#pragma once

#include "zorv_export.h"

class QIODevice;

namespace Zorv {

struct SoundSample;

/// Reads a sound file. `format` is "WAV" in capitals, or the name of an `Extension` that loads
/// sounds. The device must be open, otherwise the result is false. Returns whether `sample`
/// contains samples afterwards, so pass an empty one. Any thread, provided that no extension is
/// added or removed meanwhile.
ZORV_EXPORT bool loadSound(QIODevice* device, const char* format, SoundSample& sample);

/// Writes a sound file; format and device as above. False if there is no writer for the format or
/// writing failed.
ZORV_EXPORT bool saveSound(QIODevice* device, const char* format, const SoundSample& sample);

}  // namespace Zorv
