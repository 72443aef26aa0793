#include "family/assets/packedcopy.h"

#include "family/assets/familysprite.h"

namespace Family {

PackedCopy::PackedCopy(const FamilySprite& sprite)
    : m_hasPixels(sprite.state.pixels || !sprite.fault().isEmpty())
{
    if (sprite.state.pixels && sprite.fault().isEmpty()) {
        m_packed = PackedPixels(*sprite.state.pixels.get());
    }
}

bool PackedCopy::read()
{
    if (!m_hasPixels) {
        return true;
    }
    m_rows = m_packed.rows();
    // An image in a loose folder may have a format that sprite files do not support.
    if (m_packed.streamCrc == 0 && !m_rows.isEmpty()) {
        m_packed = PackedPixels::pack(m_packed.format, m_rows);
    }
    return !m_rows.isEmpty();
}

bool PackedCopy::putInto(Zorv::Sprite* sprite)
{
    auto* target = dynamic_cast<FamilySprite*>(sprite);
    return target && target->takePixels(m_packed, m_rows);
}

}  // namespace Family
