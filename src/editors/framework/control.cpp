#include "editors/framework/control.h"

namespace Zorv {

Control::~Control() = default;

void Control::setAreas(const char* const* areas)
{
    m_areas.clear();
    for (const char* const* area = areas; area && *area; ++area) {
        m_areas.append(QString::fromLatin1(*area));
    }
}

}  // namespace Zorv
