#pragma once

#include "zorv_export.h"

#include <QChar>
#include <QString>

namespace Zorv {

/// Receives the tokens of a line from the parser. Columns are offsets in the
/// line; `end` is one past the last character.
class ZORV_EXPORT CodeParserSyntax
{
public:
    /// The kind of a token, which determines its format. Only `Comment` does
    /// not mark a line as containing code.
    enum TokenType {
        Plain = 0,       ///< text without a meaning of its own
        Comment = 1,     ///< ignored by the engine
        Invalid = 2,     ///< unknown to the parser
        Keyword = 3,     ///< a word of the language
        Header = 4,      ///< the name of a group or an animation
        String = 5,      ///< a text in quotes
        Number = 6,      ///< a number in any format
        Constant = 7,    ///< one word of a fixed list
        Identifier = 8,  ///< the name of a value
        Operator = 9     ///< a separator: an equals sign, a comma
    };
    static constexpr int TokenTypeCount = 10;

    virtual ~CodeParserSyntax();

    /// A correct token.
    virtual void ok(TokenType type, unsigned start, unsigned end) = 0;
    /// A token that is wrong, or that the user should check. The text says what
    /// was expected and is shown unchanged.
    virtual void error(TokenType type, const QString& text, unsigned start, unsigned end) = 0;
    virtual void warning(TokenType type, const QString& text, unsigned start, unsigned end) = 0;

    /// Listed as a warning, but stored separately in the data of the line.
    virtual void deprecated(TokenType type, const QString& text, unsigned start, unsigned end) = 0;

    /// A bracket, for finding its partner. Within a line, positions must
    /// ascend.
    virtual void parenthesis(bool opening, QChar character, int position) = 0;
};

}  // namespace Zorv
