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
        Plain = 0,
        Comment = 1,
        Invalid = 2,
        Keyword = 3,
        Header = 4,
        String = 5,
        Number = 6,
        Constant = 7,
        Identifier = 8,
        Operator = 9
    };
    static constexpr int TokenTypeCount = 10;

    virtual ~CodeParserSyntax();

    virtual void ok(TokenType type, unsigned start, unsigned end) = 0;
    virtual void error(TokenType type, const QString& text, unsigned start, unsigned end) = 0;
    virtual void warning(TokenType type, const QString& text, unsigned start, unsigned end) = 0;

    /// Shown as a warning in lists, and told apart in the line's own data.
    virtual void deprecated(TokenType type, const QString& text, unsigned start, unsigned end) = 0;
    virtual void parenthesis(bool opening, QChar character, int position) = 0;
};

}  // namespace Zorv
