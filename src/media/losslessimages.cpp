#include "media/losslessimages.h"

#include <atomic>

namespace Zorv {

static std::atomic<bool> lossless(false);

void setLosslessImages(bool on)
{
    lossless.store(on, std::memory_order_relaxed);
}

bool losslessImages()
{
    return lossless.load(std::memory_order_relaxed);
}

}  // namespace Zorv
