#include "app/controls/areagate.h"

#include <QAction>
#include <QVariant>

namespace App {

AreaGate::AreaGate(const ActiveAreas* active, const QStringList& areas, QObject* target,
                   bool waitsForOwner)
    : QObject(target), m_active(active), m_areas(areas), m_isAllowed(!waitsForOwner)
{
    apply();
    connect(active, &ActiveAreas::changed, this, &AreaGate::apply);
    if (const auto* action = qobject_cast<QAction*>(target)) {
        connect(action, &QAction::changed, this, &AreaGate::heedOwner);
    }
}

void AreaGate::setAllowed(bool isAllowed)
{
    m_isAllowed = isAllowed;
    apply();
}

void AreaGate::setOffered(bool isOffered)
{
    m_isOffered = isOffered;
    apply();
}

// QAction and QWidget both have this property, but no common class declares it.
void AreaGate::apply()
{
    m_isEnabled = m_isAllowed && m_isOffered && m_active && m_active->isAnyActive(m_areas);
    parent()->setProperty("enabled", m_isEnabled);
}

// The owner of an action may also enable and disable it directly. Hidden actions are ignored: Qt
// treats them as disabled and restores their state later.
void AreaGate::heedOwner()
{
    const auto* action = static_cast<QAction*>(parent());
    if (action->isVisible() && action->isEnabled() != m_isEnabled) {
        setAllowed(action->isEnabled());
    }
}

}  // namespace App
