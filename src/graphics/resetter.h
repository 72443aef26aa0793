#pragma once

#include "zorv_export.h"

#include <QObject>

namespace Zorv {

/// Moves the deletion of a texture to the thread that owns the GL context. On that thread the
/// signal deletes at once; from other threads it is queued to the event loop. The library has one
/// instance, `s_resetter`, which lives as long as the context.
class ZORV_EXPORT Resetter : public QObject
{
    Q_OBJECT

public:
    Resetter();

signals:
    /// A texture was destroyed, on any thread. `id` is its name, 0 for none.
    void resetOnRenderThread(unsigned int id);

public slots:
    /// Deletes the name in the shared context. Only in the thread of this object.
    void reset(unsigned int id);
};

}  // namespace Zorv
