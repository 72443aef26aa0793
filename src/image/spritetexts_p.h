#pragma once

#include "text/texttable_p.h"

#include <QString>

namespace Zorv {

/// The texts of the sprite editor's tools that `ZorvTranslator` does not have.
class SpriteTexts : public TextTable
{
public:
    enum Id : unsigned { First = 2000, Sprite = First, BlendMode, Opacity, End };

    static SpriteTexts* instance();

    /// The translated title of a canvas step; the title itself if it is unknown.
    static QString stepTitle(const QString& title);

private:
    SpriteTexts();
};

}  // namespace Zorv
