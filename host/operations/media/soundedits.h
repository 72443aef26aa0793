#pragma once

#include "family/assets/assetid.h"
#include "operations/media/mediaresult.h"

#include <zorv/media/soundsample.h>

#include <QVector>
#include <functional>

namespace Family {
class SoundFile;
}  // namespace Family

namespace Operations {

class Selection;

/// The result of an edit of one sound.
struct EditedSound
{
    Zorv::SoundSample sample;
    QString fault;    ///< why the sound is unchanged; empty if it was changed
    QString warning;  ///< a goal that was not reached although the sound was changed
    double gain = 0;  ///< change of loudness in decibels
};

/// The edit of one sound, called in worker threads.
using SoundEdit = std::function<EditedSound(const Zorv::SoundSample& sound)>;

/// Converts the format, like `Zorv::convertSound()`. A value of 0 keeps the sound's own.
SoundEdit resamplingSound(const Zorv::SampleInfo& form);

/// Keeps only the part between two times in seconds; negative for the start or the end.
SoundEdit trimmingSound(double from, double to);

/// Removes everything at both ends that is not louder than `level` decibels. A silent sound is not
/// changed.
SoundEdit trimmingSilence(double level);

/// Scales to a peak in decibels; 0 is the maximum.
SoundEdit normalizingPeak(double peak);

/// Scales to a loudness in LUFS, measured by `loudnessOf()`, but never above a peak in decibels, so
/// that nothing is clipped. A sound that is too short to measure is not changed.
SoundEdit normalizingLoudness(double loudness, double peak);

/// Runs two edits in order and stops at the first fault.
SoundEdit inOrder(const SoundEdit& first, const SoundEdit& second);

/// A sound that was changed by an edit.
struct SoundChange
{
    int row = 0;
    Family::AssetId id;
    Zorv::SampleInfo info;  ///< after the change
    double gain = 0;        ///< in decibels
};

/// Edits sounds on all processors, as one undo step named `title`. A sound with a fault stays
/// unchanged and is reported, and the others are still edited; it is an error if it was the only
/// one selected. If the user cancels, nothing is changed. `changes` receives the changed sounds.
/// The collection must stay alive until this returns. Main thread only.
MediaResult editSounds(Family::SoundFile* sounds, const Selection& selection, const QString& title,
                       const SoundEdit& edit, QVector<SoundChange>* changes);

}  // namespace Operations
