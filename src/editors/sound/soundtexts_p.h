#pragma once

#include "text/texttable_p.h"

namespace Zorv {

/// The texts of the tools of the sound editor that are not among those of `ZorvTranslator`.
class SoundTexts : public TextTable
{
public:
    enum Id : unsigned {
        First = 4000,
        Sound = First,
        Trim,
        FadeIn,
        FadeOut,
        Normalize,
        Silence,
        End
    };

    static SoundTexts* instance();

private:
    SoundTexts();
};

}  // namespace Zorv
