#pragma once

#include "operations/media/imageedits.h"

namespace Operations {

/// Converts palettes to ACT files, or to another writable palette format; see `OutputFiles` for
/// where they go. Main thread only.
MediaResult convertPalettes(const QStringList& files, const OutputRequest& request);

}  // namespace Operations
