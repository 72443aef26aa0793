#pragma once

#include "zorv_export.h"

#include <QObject>

namespace Zorv {

/// Brings the deletion of a texture to the thread that owns the GL context: in that thread the
/// signal deletes at once, from others when the event loop comes to it. The library has one,
/// `s_resetter`, which lives as long as the context.
class ZORV_EXPORT Resetter : public QObject
{
    Q_OBJECT

public:
    Resetter();

signals:
    /// A texture has died, on any thread; `id` is its name, 0 for none.
    void resetOnRenderThread(unsigned int id);

public slots:
    /// Deletes the name in the shared context. In the thread of this object.
    void reset(unsigned int id);
};

}  // namespace Zorv
