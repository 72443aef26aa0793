#pragma once

#include "app/controls/activeareas.h"

#include <QPointer>

namespace App {

/// Enables an action or a widget while one of its areas is active, its owner allows it and the
/// window offers it. A child of that action or widget.
class AreaGate : public QObject
{
    Q_OBJECT

public:
    /// `target` is a QAction or a QWidget. It is allowed from the start; with `waitsForOwner` only
    /// from the first `setAllowed()`.
    AreaGate(const ActiveAreas* active, const QStringList& areas, QObject* target,
             bool waitsForOwner = false);

    QStringList areas() const { return m_areas; }

public slots:
    /// Set by the owner, from the state of its data.
    void setAllowed(bool isAllowed);

    /// Set by the window: the tools of a hidden menu are not offered.
    void setOffered(bool isOffered);

private:
    void apply();
    void heedOwner();

    QPointer<const ActiveAreas> m_active;  ///< may be destroyed before the owner's last call
    QStringList m_areas;
    bool m_isAllowed;
    bool m_isOffered = true;
    bool m_isEnabled = false;  ///< as last set here
};

}  // namespace App
