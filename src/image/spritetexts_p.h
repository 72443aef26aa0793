#pragma once

#include "text/texttable_p.h"

#include <QString>

namespace Zorv {

/// The texts of the tools of the sprite editor that are not among those of `ZorvTranslator`.
class SpriteTexts : public TextTable
{
public:
    enum Id : unsigned { First = 2000, Sprite = First, BlendMode, Opacity, End };

    static SpriteTexts* instance();

    /// The fixed title of a step of a canvas, for the person; the title itself if it is none.
    static QString stepTitle(const QString& title);

private:
    SpriteTexts();
};

}  // namespace Zorv
