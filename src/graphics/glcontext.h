#pragma once

#include "zorv_export.h"

class QOffscreenSurface;
class QOpenGLContext;

namespace Zorv {

class Resetter;

/// The GL context of the process, in which all textures are created. It is created on first use,
/// shares its objects with the context of every widget, and is freed when the application ends. The
/// application must set `Qt::AA_ShareOpenGLContexts` before it is constructed. The first call
/// leaves this context current, unless another one was current.
///
/// Main thread only, like everything in this header. Never null; `isContextUsable()` says whether
/// GL works.
ZORV_EXPORT QOpenGLContext* context();

/// The surface on which the context is made current.
ZORV_EXPORT QOffscreenSurface* surface();

/// True if the context could be created and made current; false without a display or with a broken
/// driver.
ZORV_EXPORT bool isContextUsable();

/// Frees the context, the surface and the `Resetter`, and deletes all remaining texture names.
/// Textures that still exist are safe to destroy. Called automatically when the application ends.
ZORV_EXPORT void freeContext();

/// Whether texture sides may be other than powers of two. Valid once the context has been created.
extern ZORV_EXPORT bool s_hasNPOT;

/// Deletes the names of destroyed textures; null without a context.
extern ZORV_EXPORT Resetter* s_resetter;

}  // namespace Zorv
