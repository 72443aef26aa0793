#pragma once

#include "operations/media/imageedits.h"

namespace Operations {

/// Reads palettes and writes each as an ACT file, or in another format that palettes are written
/// in; see `OutputFiles` for where to. Main thread only.
MediaResult convertPalettes(const QStringList& files, const OutputRequest& request);

}  // namespace Operations
