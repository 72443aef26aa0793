#pragma once

#include <zorv/media/soundsample.h>

#include <QString>

namespace Operations {

/// How loud a sound is. Peaks are factors: 1 is the greatest value that a sample can have.
struct SoundLoudness
{
    enum Outcome {
        Measured,
        TooShort,   ///< less than the 0.4 seconds that a loudness is measured over
        Silent,     ///< below -70 LUFS all the time
        Unmeasured  ///< the samples are broken, not of 8, 16, 24 or 32 bits, or of less than 16
                    ///< frames a second
    };

    Outcome outcome = Unmeasured;
    double samplePeak = 0;
    double truePeak =
        0;  ///< of the wave between the samples, too: above 1 where it will be cut off
    double integrated = 0;  ///< LUFS, of all of the sound; only if it was measured
};

/// By EBU R 128. A sound of one channel counts as one speaker: it is 3 LU softer than the same in
/// two. Any thread.
SoundLoudness loudnessOf(const Zorv::SoundSample& sound);

/// "too short", for the person; empty if it was measured.
QString loudnessText(SoundLoudness::Outcome outcome);

/// A factor in decibels, and back; minus infinity for silence.
double decibelsOf(double factor);
double factorOf(double decibels);

}  // namespace Operations
