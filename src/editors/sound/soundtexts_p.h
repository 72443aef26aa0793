#pragma once

#include "text/texttable_p.h"

namespace Zorv {

/// Texts of the sound editor's tools that `ZorvTranslator` does not have.
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
