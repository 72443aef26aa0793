#pragma once

#include "zorv_export.h"

namespace Zorv {

/// A format that a host adds to the library; registered with `ExtensionManager`.
class ZORV_EXPORT Extension
{
public:
    /// What the extension does. Values 0, 7 and 8 are the host's.
    enum Type {
        Other = 0,
        ImageLoader = 1,
        ImageSaver = 2,
        PaletteLoader = 3,
        PaletteSaver = 4,
        SoundLoader = 5,
        SoundSaver = 6,
        User1 = 7,
        User2 = 8
    };

    virtual ~Extension();
    virtual Type type() const = 0;
};

}  // namespace Zorv
