#pragma once

#include "media/soundsample.h"
#include "operations/media/mediaresult.h"
#include "operations/media/outputfiles.h"
#include "operations/media/selection.h"

namespace Family {

class SoundFile;

/// Reads a sound file of the format of its suffix. False, with `error` for the person, if it
/// cannot be read. Main thread only.
bool readSound(const QString& fileName, Zorv::SoundSample* sample, QString* error);

/// Seconds that a sound takes; 0 if its rate is not known.
double duration(const Zorv::SampleInfo& info);

/// Writes a WAV file for each sound. One that is broken does not keep the others from it. Main
/// thread only.
MediaResult exportSounds(const SoundFile& sounds, const Selection& selection,
                         const OutputRequest& request);

/// Adds sounds to a collection, or replaces those that are there if that is allowed, as one step of
/// undo. With a group that is not negative they get its next free numbers, else they go by their
/// names. If one of them cannot be read, or may not be replaced, nothing is changed.
MediaResult importSounds(SoundFile* sounds, const QStringList& files, int group, bool force);

}  // namespace Family
