#include "cache/sound.h"

namespace Zorv {

Sound::~Sound() = default;

}  // namespace Zorv
