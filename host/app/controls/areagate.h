#pragma once

#include "app/controls/activeareas.h"

#include <QPointer>

namespace App {

/// Keeps an action or a widget enabled while one of its areas is active, its owner allows it and
/// the window offers it. Lives as a child of it.
class AreaGate : public QObject
{
    Q_OBJECT

public:
    /// `target` is a QAction or a QWidget. It is allowed at first, or with
    /// `waitsForOwner` not before the first `setAllowed()`.
    AreaGate(const ActiveAreas* active, const QStringList& areas, QObject* target,
             bool waitsForOwner = false);

    QStringList areas() const { return m_areas; }

public slots:
    /// What the owner says: the state of its data.
    void setAllowed(bool isAllowed);

    /// What the window says: tools of a menu that is hidden are not offered.
    void setOffered(bool isOffered);

private:
    void apply();
    void heedOwner();

    QPointer<const ActiveAreas> m_active;  ///< may die before the last owner speaks
    QStringList m_areas;
    bool m_isAllowed;
    bool m_isOffered = true;
    bool m_isEnabled = false;  ///< as it was set here last
};

}  // namespace App
