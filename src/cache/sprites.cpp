#include "cache/sprites.h"

#include "cache/sprite.h"

namespace Zorv {

Sprites::Sprites(StreamCache* cache) : CachedProjectFile(cache) {}

Sprites::~Sprites() = default;

int Sprites::find(int from, const QVariant& id) const
{
    for (int row = qMax(from, 0); row < int(count()); ++row) {
        const Sprite* each = sprite(row);
        if (each && each->property(QStringLiteral("Identifier")) == id) {
            return row;
        }
    }
    return -1;
}

bool Sprites::canName(const QVariant&) const
{
    return true;
}

ImagePreparer Sprites::imagePreparer() const
{
    return [](const QImage& image) { return std::make_shared<const PreparedImage>(image); };
}

}  // namespace Zorv
