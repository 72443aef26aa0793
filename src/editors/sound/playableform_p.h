#pragma once

#include "media/soundsample.h"
#include "zorv_export.h"

#include <functional>

namespace Zorv {

/// A form of samples for a device: plain numbers, those of 8 bits without a sign, or floats.
struct PlayableForm
{
    SampleInfo info;  ///< of floats that of whole numbers of 32 bits; no channels for no form
    bool isFloat = false;
};

/// The form nearest to `wanted` that a device takes. `offered` is what the device itself calls the
/// nearest, which may have samples that are not played here: its rate and channels are tried behind
/// those wanted. Of the bits first as many as wanted, then more, floats, and fewer.
ZORV_EXPORT PlayableForm playableFormOf(const SampleInfo& wanted, const SampleInfo& offered,
                                        const std::function<bool(const PlayableForm&)>& takes);

}  // namespace Zorv
