#pragma once

#include "zorv_export.h"

namespace Zorv {

/// The filter texts of file dialogs.
enum class FileExtensionType {
    AllImages = 0,       ///< all patterns together; follows a translated label
    ImagesPcxFirst = 1,  ///< one filter a format
    ImagesPngFirst = 2,
    AllPalettes = 3,  ///< as `AllImages`
    Palettes = 4,     ///< one filter a format
    PaletteAct = 5    ///< what palettes are written as
};

/// The filter text of a type, as `QFileDialog` takes it; null for any other value.
ZORV_EXPORT const char* fileExtension(FileExtensionType type);

}  // namespace Zorv
