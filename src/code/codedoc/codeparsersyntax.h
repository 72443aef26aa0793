#pragma once

#include "zorv_export.h"

#include <QChar>
#include <QString>

namespace Zorv {

/// What a grammar reports a line's tokens to. Columns are offsets in the line,
/// an `end` is behind the last character.
class ZORV_EXPORT CodeParserSyntax
{
public:
    /// The look of a token. `Comment` is the one that does not mark a line as
    /// holding code.
    enum TokenType {
        Plain = 0,       ///< text without a part of its own
        Comment = 1,     ///< for the reader alone
        Invalid = 2,     ///< what the grammar does not know
        Keyword = 3,     ///< a word of the grammar
        Header = 4,      ///< the name of a group or an animation
        String = 5,      ///< a text in quotes
        Number = 6,      ///< a number, of any form
        Constant = 7,    ///< one word of a list
        Identifier = 8,  ///< the name of a value
        Operator = 9     ///< what divides: a sign of equality, a comma
    };
    static constexpr int TokenTypeCount = 10;

    virtual ~CodeParserSyntax();

    /// A token as it should be.
    virtual void ok(TokenType type, unsigned start, unsigned end) = 0;
    /// A token that cannot be used, or one that the person should look at. The
    /// text says what was expected, and is shown as it stands.
    virtual void error(TokenType type, const QString& text, unsigned start, unsigned end) = 0;
    virtual void warning(TokenType type, const QString& text, unsigned start, unsigned end) = 0;

    /// Shown as a warning in lists, and told apart in the line's own data.
    virtual void deprecated(TokenType type, const QString& text, unsigned start, unsigned end) = 0;

    /// A bracket, for the search of its partner. Positions ascend in a line.
    virtual void parenthesis(bool opening, QChar character, int position) = 0;
};

}  // namespace Zorv
