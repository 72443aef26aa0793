#include "app/controls/activeareas.h"

#include <algorithm>

namespace App {

namespace {

bool isEverywhere(const QStringList& areas)
{
    return areas.isEmpty() || areas.contains(QLatin1String("all"));
}

}  // namespace

void ActiveAreas::set(const QSet<QString>& areas)
{
    if (m_areas != areas) {
        m_areas = areas;
        emit changed();
    }
}

bool ActiveAreas::isAnyActive(const QStringList& areas) const
{
    return isEverywhere(areas) ||
           std::any_of(areas.begin(), areas.end(),
                       [this](const QString& area) { return m_areas.contains(area); });
}

bool ActiveAreas::canMeet(const QStringList& first, const QStringList& second)
{
    return isEverywhere(first) || isEverywhere(second) ||
           std::any_of(first.begin(), first.end(),
                       [&second](const QString& area) { return second.contains(area); });
}

QStringList ActiveAreas::fromArray(const char* const* areas)
{
    QStringList names;
    for (const char* const* area = areas; area && *area; ++area) {
        names.append(QString::fromLatin1(*area));
    }
    return names;
}

}  // namespace App
