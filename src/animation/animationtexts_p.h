#pragma once

#include "text/translator.h"

#include <QCoreApplication>

namespace Zorv {

/// The texts of the tools of the animation editor that are not among those of `ZorvTranslator`.
class AnimationTexts : public Translator
{
    Q_DECLARE_TR_FUNCTIONS(Zorv::AnimationTexts)

public:
    enum Id : unsigned { Animation, OnionAnimation, OnionFrame, Count };

    static AnimationTexts* instance();

    QString trText(unsigned int id) const override;
    QString trToolTip(unsigned int id) const override;
};

}  // namespace Zorv
