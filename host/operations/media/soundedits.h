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

/// What has become of a sound.
struct EditedSound
{
    Zorv::SoundSample sample;
    QString fault;    ///< why the sound stays as it is; empty if it does not
    QString warning;  ///< what was not reached although the sound has changed
    double gain = 0;  ///< by how many decibels it is louder now
};

/// What is done with each sound of a piece of work, in other threads.
using SoundEdit = std::function<EditedSound(const Zorv::SoundSample& sound)>;

/// Another form, as `Zorv::convertSound()` makes it. What is 0 stays as it is.
SoundEdit resamplingSound(const Zorv::SampleInfo& form);

/// Only the part between two times in seconds; negative for the start, and for the end.
SoundEdit trimmingSound(double from, double to);

/// Without what is no louder than a level in decibels at both ends. A silent sound stays.
SoundEdit trimmingSilence(double level);

/// As loud as a peak in decibels, 0 for as loud as it can be.
SoundEdit normalizingPeak(double peak);

/// As loud as a number of LUFS, by `loudnessOf()`, but no louder than a peak in decibels: it is not
/// cut off. What is too short to be measured stays.
SoundEdit normalizingLoudness(double loudness, double peak);

/// One after the other; the first fault counts.
SoundEdit inOrder(const SoundEdit& first, const SoundEdit& second);

/// A sound that an edit has changed.
struct SoundChange
{
    int row = 0;
    Family::AssetId id;
    Zorv::SampleInfo info;  ///< now
    double gain = 0;        ///< in decibels
};

/// Changes sounds on all processors, as one step of undo of that title. What stays as it is
/// because of a fault is told, and does not keep the others from it; if nothing else was selected
/// that is an error. If the person gives up, nothing is changed. `changes` gets what has changed.
/// The collection has to stay until it is done. Main thread only.
MediaResult editSounds(Family::SoundFile* sounds, const Selection& selection, const QString& title,
                       const SoundEdit& edit, QVector<SoundChange>* changes);

}  // namespace Operations
