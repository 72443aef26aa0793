#pragma once

#include "zorv_export.h"

class QIODevice;

namespace Zorv {

struct SoundSample;

/// Reads a sound file. `format` is "WAV", in capitals, or the name of an `Extension` that
/// loads sounds. The device is open; false otherwise. The result is whether `sample` holds samples
/// afterwards, so give an empty one. Any thread, while no extension comes or goes.
ZORV_EXPORT bool loadSound(QIODevice* device, const char* format, SoundSample& sample);

/// Writes a sound file; formats and device likewise. False if nobody writes the format
/// or writing failed.
ZORV_EXPORT bool saveSound(QIODevice* device, const char* format, const SoundSample& sample);

}  // namespace Zorv
