#pragma once

#include "text/translator.h"

#include <QCoreApplication>

namespace Zorv {

/// The texts of the tools of the sound editor that are not among those of `ZorvTranslator`.
class SoundTexts : public Translator
{
    Q_DECLARE_TR_FUNCTIONS(Zorv::SoundTexts)

public:
    /// Beside the numbers of `ZorvTranslator`, so that a number tells whose it is.
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

    /// The translator that has a number.
    static Translator* of(unsigned id);

    static SoundTexts* instance();

    QString trText(unsigned int id) const override;
    QString trToolTip(unsigned int id) const override;
};

}  // namespace Zorv
