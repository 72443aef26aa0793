#pragma once

#include "operations/media/mediaresult.h"
#include "operations/media/outputfiles.h"
#include "operations/media/selection.h"

#include <zorv/media/soundsample.h>

namespace Family {
class SoundFile;
}  // namespace Family

namespace Operations {

/// Which samples are read of a file whose sizes are wrong, as programs leave them that record
/// without an end.
enum class SoundExtent {
    AsTold,  ///< those that the sizes lead to
    Whole,   ///< all that are there
};

/// Reads a WAV file, whatever its name, or a sound file of the format of its suffix. What it holds
/// beyond that, and what it lacks, is told. Any thread.
Outcome readSound(const QString& fileName, SoundExtent extent, Zorv::SoundSample* sample);

/// Why a sound file cannot hold a sound of that form; empty if it can.
QString unfitText(const QString& fileName, const Zorv::SampleInfo& info);

/// What of some files is not read as told, as a text for the person. Empty if they are read whole,
/// or not at all. Looks at no samples.
QString partialSounds(const QStringList& files);

/// Seconds that a sound takes; 0 if its rate is not known.
double duration(const Zorv::SampleInfo& info);

/// Writes a WAV file for each sound. One that is broken does not keep the others from it. Main
/// thread only.
MediaResult exportSounds(const Family::SoundFile& sounds, const Selection& selection,
                         const OutputRequest& request);

/// How files become sounds.
struct SoundImport
{
    int group = -1;      ///< whose next free numbers they get; negative to go by their names
    bool force = false;  ///< sounds that are there may be replaced
    SoundExtent extent = SoundExtent::AsTold;
};

/// Adds sounds to a collection, or replaces those that are there if that is allowed, as one step of
/// undo. If one of them cannot be read, or may not be replaced, nothing is changed.
MediaResult importSounds(Family::SoundFile* sounds, const QStringList& files,
                         const SoundImport& request);

}  // namespace Operations
