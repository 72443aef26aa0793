#pragma once

#include "media/soundsample.h"
#include "zorv_export.h"

#include <QString>

#include <atomic>

namespace Zorv {

/// What came of the conversion of a sound to another form.
struct SoundConversion
{
    enum Outcome {
        Done,
        Canceled,
        NoSamples,    ///< the source has no whole frame, no rate or no channels
        UnknownBits,  ///< source or target has other samples than of 8, 16, 24 or 32 bits
        BadTarget,    ///< the target has no rate or no channels
        RatioTooFar,  ///< one rate is more than 256 times the other
        TooLong,      ///< the result would be longer than a sound can be
        Refused       ///< the converter cannot do it: more than 128 channels to another rate
    };

    Outcome outcome = Done;
    SoundSample sample;  ///< empty unless it is done
};

/// A sound with other channels, bits or frames a second; `frames` of the target is ignored.
///
/// At another rate it is resampled at the best quality of libsamplerate, which costs about a
/// hundredth of the time that the sound plays. There are frames times ratio, rounded down, and at
/// least one; those that the converter does not give are silent. Several channels become one, or
/// any other number, as their mean; one is repeated. Values that are too loud are cut off.
/// `frames` beyond the data are not there.
///
/// The work stops soon after `*isCanceled` is true; null cannot be cancelled. Besides the result
/// it takes little memory. Any thread.
ZORV_EXPORT SoundConversion convertSound(const SoundSample& sound, const SampleInfo& target,
                                         const std::atomic<bool>* isCanceled = nullptr);

/// Why a sound stays as it was, in words for the person; empty if it is done or cancelled.
ZORV_EXPORT QString soundConversionText(SoundConversion::Outcome outcome);

/// True if they agree in channels, bits and frames a second.
ZORV_EXPORT bool isSameForm(const SampleInfo& a, const SampleInfo& b);

}  // namespace Zorv
