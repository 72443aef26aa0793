#pragma once

#include "text/texttable_p.h"

namespace Zorv {

/// The texts of the tools of the animation editor that are not among those of `ZorvTranslator`.
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
