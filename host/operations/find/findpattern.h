#pragma once

#include <zorv/editors/code/codefind.h>

#include <QString>

namespace Operations {

/// A search pattern for the find bar, for the search in the files of a game, and for the command
/// line.
///
/// In a regular expression ^ and $ match at the ends of a line, and a dot matches no line end. A
/// value type; each thread needs its own.
class FindPattern
{
public:
    enum Option { MatchCase = 1, WholeWord = 2, Expression = 4 };

    explicit FindPattern(const QString& text = {}, int options = 0);

    bool isEmpty() const { return m_text.isEmpty(); }
    const QString& text() const { return m_text; }
    int options() const { return m_options; }

    bool operator==(const FindPattern& other) const
    {
        return m_text == other.m_text && m_options == other.m_options;
    }

    /// What is wrong with an expression and where, for the user; empty if it is valid.
    QString error() const { return m_error; }

    /// Finds nothing while there is an error.
    const Zorv::CodeFind& find() const { return m_find; }

    /// The text that replaces a match. With an expression, \n becomes a line end and \t a tab.
    QString replacement(const QString& with) const;

private:
    QString m_text;
    int m_options;
    QString m_error;
    Zorv::CodeFind m_find;
};

}  // namespace Operations
