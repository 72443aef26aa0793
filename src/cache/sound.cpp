#include "cache/sound.h"

namespace Zorv {

Sound::~Sound() = default;

std::function<QByteArray()> Sound::sampleReader() const
{
    return [data = sampleData()] { return data; };
}

}  // namespace Zorv
