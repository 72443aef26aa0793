#pragma once

#include "text/translator.h"

#include <QCoreApplication>

namespace Zorv {

/// The texts of the tools of the sprite editor that are not among those of `ZorvTranslator`.
class SpriteTexts : public Translator
{
    Q_DECLARE_TR_FUNCTIONS(Zorv::SpriteTexts)

public:
    /// Beside the numbers of `ZorvTranslator`, so that a number tells whose it is.
    enum Id : unsigned { First = 2000, Sprite = First, BlendMode, Opacity, End };

    /// The translator that has a number.
    static Translator* of(unsigned id);

    static SpriteTexts* instance();

    QString trText(unsigned int id) const override;
    QString trToolTip(unsigned int id) const override;

    /// The fixed title of a step of a canvas, for the person; the title itself if it is none.
    static QString stepTitle(const QString& title);
};

}  // namespace Zorv
