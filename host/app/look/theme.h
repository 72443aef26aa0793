#pragma once

#include <zorv/code/codedoc/codeparsersyntax.h>

#include <QColor>
#include <QPalette>
#include <QString>
#include <QVariant>
#include <QVector>

namespace App {

/// The colours of the window, light or dark. Every colour comes from the palette or is defined
/// here, in both themes, with enough contrast to be readable.
class Theme
{
public:
    enum Kind { Light, Dark };

    /// Colours for which a palette has no role.
    enum Colour {
        CurrentLine,  ///< background of the line with the cursor
        BlockRange,   ///< background of the innermost block around the cursor
        ParenRange,   ///< background between two brackets
        ParenGround,  ///< background of the two brackets
        ParenText,    ///< text colour of the two brackets
        ErrorText,    ///< a text about an error
        AddedText,    ///< an added line in a comparison
        RemovedText,  ///< a removed line in a comparison
        PlaceText,    ///< a line that names a place
        ColourCount
    };

    /// The kind for a setting: "light", "dark"; anything else is the system's kind.
    static Kind kindOf(const QString& setting);

    static QPalette palette(Kind kind);
    static QColor colour(Kind kind, Colour colour);
    static QColor token(Kind kind, Zorv::CodeParserSyntax::TokenType type);

    /// The value of a code editor setting. `own` is the user's colour; if it is invalid, the
    /// current theme's colour is used. "line", "block_range" and "paren_range" are colours, "paren"
    /// is a `QTextFormat`. Invalid for any other key.
    static QVariant codeSetting(const QString& key, const QColor& own);

    /// Applies style and colours to the application, and token colours to documents. Text that is
    /// already coloured keeps its colours until it is highlighted again.
    static void use(Kind kind);

    /// `Light` before `use()`.
    static Kind current();

    /// A colour of the current theme.
    static QColor colour(Colour which) { return colour(current(), which); }
};

}  // namespace App
