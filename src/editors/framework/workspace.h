#pragma once

#include "zorv_export.h"

#include <QObject>

class QWidget;

namespace Zorv {

/// The central area of the window for one kind of work: code, graphics, sound.
///
/// The host owns all workspaces and shows one at a time. Main thread only.
class ZORV_EXPORT Workspace : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /// Short name; settings identify the workspace by it.
    virtual QString name() const = 0;

    /// The widget for the centre of the host's window. Owned by the workspace.
    virtual QWidget* widget() const = 0;

    /// The current engine family has changed; false while the old one is being left.
    virtual void engineSwitched(bool isNew);

    /// The workspace was shown in the window, or hidden.
    virtual void activate();
    virtual void deactivate();

    /// Settings have changed.
    virtual void reconfig();

    /// The language has changed.
    virtual void retranslate();

    /// The user clicked the position field of the status bar.
    virtual void statusClicked();

    virtual void zoomActual();
    virtual void zoomIn();
    virtual void zoomOut();
};

}  // namespace Zorv
