#pragma once

#include <zorv/media/soundsample.h>

#include <QString>

namespace Operations {

/// The loudness of a sound. Peaks are factors: 1 is the maximum of a sample.
struct SoundLoudness
{
    enum Outcome {
        Measured,
        TooShort,   ///< shorter than the 0.4 seconds of a measuring window
        Silent,     ///< always below -70 LUFS
        Unmeasured  ///< the samples are broken, not 8, 16, 24 or 32 bits, or the rate is below 16
                    ///< frames a second
    };

    Outcome outcome = Unmeasured;
    double samplePeak = 0;
    double truePeak =
        0;  ///< also between samples, where the wave may be higher: above 1 it will clip
    double integrated = 0;  ///< LUFS of the whole sound; only if measured
};

/// Measures according to EBU R 128. A mono sound counts as one speaker, so it is 3 LU softer than
/// the same sound in two channels. Any thread.
SoundLoudness loudnessOf(const Zorv::SoundSample& sound);

/// A text for the user such as "too short"; empty if it was measured.
QString loudnessText(SoundLoudness::Outcome outcome);

/// Converts a factor to decibels, and back; silence is minus infinity.
double decibelsOf(double factor);
double factorOf(double decibels);

}  // namespace Operations
