#pragma once

#include "family/grammar/problems.h"

#include <zorv/code/codedoc/codeparsersyntax.h>

#include <QVector>

namespace Family {

/// A problem at a range of columns in a line.
struct LineProblem
{
    ProblemId id;
    int start;
    int end;  ///< after the last character
    QString text;
};

/// A part of a line that an edit can address.
struct LinePart
{
    enum Role {
        Keyword,  ///< "animation", "frame", "attack", "body"
        Key,
        Value,     ///< a whole value; `index` is `Unread` if it is meaningless
        Element,   ///< one part of a value
        Name,      ///< of a group, in its head
        Argument,  ///< of a group, or the identifier of an animation
        Text,      ///< display name of an animation, including its quotes
        Sprite,    ///< the two numbers of a frame
        Option,    ///< an option of a frame with its numbers; `index` is that of
                   ///< `Grammar::frameOptions()`
        Comment
    };

    static constexpr int Unread = 1;

    Role role;
    int index;  ///< of an element in its value, sprite or option
    int start;
    int end;
};

/// The problems and parts of a line, if they are needed.
struct LineDetails
{
    QVector<LineProblem> problems;
    QVector<LinePart> parts;

    /// The first part with this role; null if there is none.
    const LinePart* part(LinePart::Role role, int index = 0) const;

    /// The elements of the value, or those inside `whole`.
    QVector<LinePart> elements(const LinePart* whole = nullptr) const;
};

/// Receives the results of reading a line: colours and messages go to the document, details to
/// checks and edits. Each target is optional.
class LineReport
{
public:
    explicit LineReport(Zorv::CodeParserSyntax* syntax, LineDetails* details = nullptr)
        : m_syntax(syntax), m_details(details)
    {
    }

    void token(Zorv::CodeParserSyntax::TokenType type, int start, int end)
    {
        if (m_syntax) {
            m_syntax->ok(type, unsigned(start), unsigned(end));
        }
    }

    void parenthesis(bool opening, QChar character, int position)
    {
        if (m_syntax) {
            m_syntax->parenthesis(opening, character, position);
        }
    }

    void part(LinePart::Role role, int index, int start, int end)
    {
        if (m_details) {
            m_details->parts.append({role, index, start, end});
        }
    }

    /// True if anybody receives problems. Otherwise do not build their texts.
    bool wantsProblems() const { return m_syntax || m_details; }

    /// Reports a problem at columns, which are coloured as `type`.
    void problem(ProblemId id, const QStringList& arguments, int start, int end,
                 Zorv::CodeParserSyntax::TokenType type = Zorv::CodeParserSyntax::Invalid);

private:
    Zorv::CodeParserSyntax* m_syntax;
    LineDetails* m_details;
};

}  // namespace Family
