#pragma once

#include "media/soundsample.h"
#include "zorv_export.h"

#include <QString>

#include <atomic>

namespace Zorv {

/// The result of converting a sound.
struct SoundConversion
{
    enum Outcome {
        Done,
        Canceled,
        NoSamples,    ///< the source has no whole frame, no rate or no channels
        UnknownBits,  ///< source or target samples are not of 8, 16, 24 or 32 bits
        BadTarget,    ///< the target has no rate or no channels
        RatioTooFar,  ///< one rate is more than 256 times the other
        TooLong,      ///< the result would be longer than a sound can be
        Refused       ///< the converter cannot do it: more than 128 channels to another rate
    };

    Outcome outcome = Done;
    SoundSample sample;  ///< empty unless `outcome` is `Done`
};

/// Converts a sound to other channels, bits or frames per second; `frames` of the target is
/// ignored.
///
/// At another rate the sound is resampled with the best quality of libsamplerate. This takes about
/// a hundredth of the sound's playing time. The result has frames times ratio, rounded down, and at
/// least one frame; frames that the converter does not deliver are silent. Several channels are
/// mixed to one, or any other number, by their mean; one channel is duplicated. Values that are too
/// loud are clipped. Declared `frames` beyond the data are ignored.
///
/// The work stops soon after `*isCanceled` becomes true; with null it cannot be cancelled. Besides
/// the result it needs little memory. Any thread.
ZORV_EXPORT SoundConversion convertSound(const SoundSample& sound, const SampleInfo& target,
                                         const std::atomic<bool>* isCanceled = nullptr);

/// Why a sound was not converted, as a text for the user; empty if done or cancelled.
ZORV_EXPORT QString soundConversionText(SoundConversion::Outcome outcome);

/// True if channels, bits and frames per second are equal.
ZORV_EXPORT bool isSameForm(const SampleInfo& a, const SampleInfo& b);

}  // namespace Zorv
