#include "family/assets/freeids.h"

namespace Family {

AssetId FreeIds::next(AssetId from)
{
    AssetId id = from;
    if (m_hasAnswer && !(from < m_asked) && from < m_answer) {
        id = m_answer;
    }
    while (isTaken(id)) {
        id = AssetId::fromKey(id.key() + 1);
    }
    keep(id);
    m_asked = from;
    m_answer = id;
    m_hasAnswer = true;
    return id;
}

}  // namespace Family
