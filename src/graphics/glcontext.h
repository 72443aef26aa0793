#pragma once

#include "zorv_export.h"

class QOffscreenSurface;
class QOpenGLContext;

namespace Zorv {

class Resetter;

/// The GL context of the process, which textures are made in. It is made on first use, shares its
/// objects with every widget's context, and is freed when the application ends. The application
/// must have set `Qt::AA_ShareOpenGLContexts` before it was constructed. The first call leaves it
/// current, unless another context was.
///
/// Main thread only, as everything here. Never null; `isContextUsable()` tells if GL works.
ZORV_EXPORT QOpenGLContext* context();

/// The surface that the context is made current on.
ZORV_EXPORT QOffscreenSurface* surface();

/// True if the context could be made and be made current: false without a display, or with a
/// driver that does not work.
ZORV_EXPORT bool isContextUsable();

/// Frees context, surface and `Resetter`, and with them the name of every texture that is left.
/// Textures that live on are safe to destroy. The application does it when it ends.
ZORV_EXPORT void freeContext();

/// Whether textures need not have sides that are powers of two. Known once the context is made.
extern ZORV_EXPORT bool s_hasNPOT;

/// Deletes the names of textures that die; null without a context.
extern ZORV_EXPORT Resetter* s_resetter;

}  // namespace Zorv
