#pragma once

#include "zorv_export.h"

#include <QObject>

class QWidget;

namespace Zorv {

/// A side panel beside the workspace: organizer, thumbnails, palette.
///
/// The host owns it, shows it, and calls the functions below when that changes. Main
/// thread only.
class ZORV_EXPORT ExtraEditor : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /// Short name; settings identify the panel by it.
    virtual QString name() const = 0;

    /// The title of the panel in the user's language.
    virtual QString displayName() const = 0;

    /// The panel's own widget; null if it publishes everything as controls. Owned by
    /// the panel.
    virtual QWidget* widget() const;

    /// The panel was shown or hidden. Overrides call these first.
    virtual void activate();
    virtual void deactivate();

    /// True between `activate()` and `deactivate()`.
    bool isActive() const;

    /// Settings have changed.
    virtual void reconfig();

    /// The language has changed.
    virtual void retranslate();

private:
    bool m_active = false;
};

}  // namespace Zorv
