#pragma once

#include "text/texttable_p.h"

namespace Zorv {

/// Texts of the animation editor's tools that `ZorvTranslator` does not have.
class AnimationTexts : public TextTable
{
public:
    enum Id : unsigned {
        First = 1000,
        Animation = First,
        OnionAnimation,
        OnionFrame,
        OnionBefore,
        OnionAfter,
        BoxX,
        BoxY,
        BoxWidth,
        BoxHeight,
        BoxCopy,
        BoxPaste,
        BoxMirror,
        BoxToFrames,
        BoxLock,
        PlayHere,
        PlayHalf,
        PlayQuarter,
        PlayAgain,
        FrameReverse,
        Facts,
        End
    };

    static AnimationTexts* instance();

private:
    AnimationTexts();
};

}  // namespace Zorv
