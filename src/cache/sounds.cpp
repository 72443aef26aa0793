#include "cache/sounds.h"

namespace Zorv {

Sounds::Sounds(StreamCache* cache) : CachedProjectFile(cache) {}

Sounds::~Sounds() = default;

std::function<std::shared_ptr<const void>(const QByteArray&)> Sounds::packer() const
{
    return {};
}

bool Sounds::canName(const QVariant&) const
{
    return true;
}

}  // namespace Zorv
