#pragma once

#include "text/translator.h"

#include <QCoreApplication>

namespace Zorv {

/// The texts of the tools of the animation editor that are not among those of `ZorvTranslator`.
class AnimationTexts : public Translator
{
    Q_DECLARE_TR_FUNCTIONS(Zorv::AnimationTexts)

public:
    /// Beside the numbers of `ZorvTranslator`, so that a number tells whose it is.
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

    /// The translator that has a number.
    static Translator* of(unsigned int id);

    static AnimationTexts* instance();

    QString trText(unsigned int id) const override;
    QString trToolTip(unsigned int id) const override;
};

}  // namespace Zorv
