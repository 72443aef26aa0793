#pragma once

#include "zorv_export.h"

#include <QObject>

class QWidget;

namespace Zorv {

/// A side panel beside the workspace: organizer, thumbnails, palette.
///
/// Owned by the host, which shows it and calls the operations below when that
/// changes. Main thread only.
class ZORV_EXPORT ExtraEditor : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /// Short name, which the settings know the panel by.
    virtual QString name() const = 0;

    /// The title of the panel in the person's language.
    virtual QString displayName() const = 0;

    /// The widget of a panel that brings its own; null if all that it shows
    /// was published as controls. The panel's.
    virtual QWidget* widget() const;

    /// The panel is shown, or hidden. A derived one calls these first.
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
