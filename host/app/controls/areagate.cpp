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

// QAction and QWidget have the property in common, and no class that declares it.
void AreaGate::apply()
{
    m_isEnabled = m_isAllowed && m_active && m_active->isAnyActive(m_areas);
    parent()->setProperty("enabled", m_isEnabled);
}

// Whoever got an action from here may enable and disable it by hand as well.
void AreaGate::heedOwner()
{
    const bool isEnabled = parent()->property("enabled").toBool();
    if (isEnabled != m_isEnabled) {
        setAllowed(isEnabled);
    }
}

}  // namespace App
