#pragma once

#include "operations/media/mediaresult.h"
#include "operations/media/outputfiles.h"
#include "operations/media/selection.h"

#include <zorv/media/soundsample.h>

namespace Family {
class SoundFile;
}  // namespace Family

namespace Operations {

/// How much to read of a file with wrong sizes in its headers. Programs that record endlessly write
/// such files.
enum class SoundExtent {
    AsTold,  ///< the samples that the headers declare
    Whole,   ///< all samples that exist
};

/// Reads a sound file: WAV whatever its name, or the format of its suffix. The result reports
/// additional and missing data. Any thread.
Outcome readSound(const QString& fileName, SoundExtent extent, Zorv::SoundSample* sample);

/// Why a sound file cannot hold a sound of this format; empty if it can.
QString unfitText(const QString& fileName, const Zorv::SampleInfo& info);

/// A text for the user about files that are only partly read as declared. Empty if all are read
/// completely or not at all. Reads no samples.
QString partialSounds(const QStringList& files);

/// The length of a sound in seconds; 0 if the sample rate is unknown.
double duration(const Zorv::SampleInfo& info);

/// Writes a WAV file for each sound. A broken sound does not stop the others. Main thread only.
MediaResult exportSounds(const Family::SoundFile& sounds, const Selection& selection,
                         const OutputRequest& request);

/// How files become sounds.
struct SoundImport
{
    int group = -1;      ///< the group whose next free numbers they get; negative to use the
                         ///< numbers in their names
    bool force = false;  ///< existing sounds may be replaced
    SoundExtent extent = SoundExtent::AsTold;
};

/// Adds sounds to a collection, or replaces existing ones if that is allowed, as one undo step. If
/// one file cannot be read, or a sound may not be replaced, nothing is changed.
MediaResult importSounds(Family::SoundFile* sounds, const QStringList& files,
                         const SoundImport& request);

}  // namespace Operations
