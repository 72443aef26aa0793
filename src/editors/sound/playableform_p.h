#pragma once

#include "media/soundsample.h"
#include "zorv_export.h"

#include <functional>

namespace Zorv {

/// A sample format for a device: integers (unsigned for 8 bits) or floats.
struct PlayableForm
{
    SampleInfo info;  ///< for floats the 32-bit integer form; no channels: no form
    bool isFloat = false;
};

/// The closest form to `wanted` that a device accepts. `offered` is what the device itself calls
/// the closest. Its samples may be of a kind that is not played here, so only its rate and channels
/// are tried, after the wanted ones; last come 48 and 44.1 kHz in stereo. Sample sizes are tried in
/// this order: the wanted one, larger ones, floats, smaller ones.
ZORV_EXPORT PlayableForm playableFormOf(const SampleInfo& wanted, const SampleInfo& offered,
                                        const std::function<bool(const PlayableForm&)>& takes);

}  // namespace Zorv
