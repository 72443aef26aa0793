#pragma once

#include "zorv_export.h"

#include <QObject>

class QWidget;

namespace Zorv {

/// The central area of the window for one way of working: code, graphics, sound.
///
/// Owned by the host, which shows one of them at a time. Main thread only.
class ZORV_EXPORT Workspace : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /// Short name, which the settings know the workspace by.
    virtual QString name() const = 0;

    /// What the host puts into the middle of its window; the workspace's.
    virtual QWidget* widget() const = 0;

    /// The engine family in use has changed; false while the old one goes.
    virtual void engineSwitched(bool isNew);

    /// The workspace comes to the middle of the window, or leaves it.
    virtual void activate();
    virtual void deactivate();

    /// Settings have changed.
    virtual void reconfig();

    /// The language has changed.
    virtual void retranslate();

    /// The person has clicked the field of the status bar that shows the place.
    virtual void statusClicked();

    virtual void zoomActual();
    virtual void zoomIn();
    virtual void zoomOut();
};

}  // namespace Zorv
