#pragma once

#include "zorv_export.h"

namespace Zorv {

/// The filter texts of file dialogs.
enum class FileExtensionType {
    AllImages = 0,       ///< all patterns together; follows a translated label
    ImagesPcxFirst = 1,  ///< one filter per format
    ImagesPngFirst = 2,
    AllPalettes = 3,  ///< like `AllImages`
    Palettes = 4,     ///< one filter per format
    PaletteAct = 5    ///< the format palettes are written in
};

/// The filter text of a type for `QFileDialog`; null for any other value.
ZORV_EXPORT const char* fileExtension(FileExtensionType type);

}  // namespace Zorv
