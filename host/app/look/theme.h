#pragma once

#include <zorv/code/codedoc/codeparsersyntax.h>

#include <QColor>
#include <QPalette>
#include <QString>
#include <QVariant>
#include <QVector>

namespace App {

/// The colours of the window, light or dark. Every colour that is drawn is the palette's or
/// stands here, in both sets, with enough contrast to be read.
class Theme
{
public:
    enum Kind { Light, Dark };

    /// What has a colour that no role of a palette stands for.
    enum Colour {
        CurrentLine,  ///< ground of the line with the cursor
        BlockRange,   ///< ground of the innermost block around the cursor
        ParenRange,   ///< ground between two brackets
        ParenGround,  ///< ground of the two themselves
        ParenText,    ///< and what they are written in
        ErrorText,    ///< a text that tells of something wrong
        AddedText,    ///< a line that came, in a comparison
        RemovedText,  ///< a line that went
        PlaceText,    ///< a line that tells where
        ColourCount
    };

    /// The kind that a setting means: "light", "dark", and anything else for that of the system.
    static Kind kindOf(const QString& setting);

    static QPalette palette(Kind kind);
    static QColor colour(Kind kind, Colour colour);
    static QColor token(Kind kind, Zorv::CodeParserSyntax::TokenType type);

    /// What a setting of the code editor means with a colour of the person's own, or
    /// with an invalid one in the theme in use: "line", "block_range" and "paren_range"
    /// are colours, "paren" is a `QTextFormat`. Invalid for any other key.
    static QVariant codeSetting(const QString& key, const QColor& own);

    /// Gives the application the style and the colours, and documents the colours of tokens.
    /// Texts that are coloured already keep them until they are highlighted again.
    static void use(Kind kind);

    /// Light before `use()`.
    static Kind current();

    /// A colour of the theme in use.
    static QColor colour(Colour which) { return colour(current(), which); }
};

}  // namespace App
