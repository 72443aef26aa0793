#pragma once

#include <zorv/editors/code/codefind.h>

#include <QString>

namespace App {

/// What the person looks for in a text, from a field and the buttons beside it.
///
/// In an expression ^ and $ are the ends of a line, and a dot takes no line end.
class FindPattern
{
public:
    enum Option { MatchCase = 1, WholeWord = 2, Expression = 4 };

    explicit FindPattern(const QString& text = {}, int options = 0);

    bool isEmpty() const { return m_text.isEmpty(); }

    /// What is wrong with an expression and where, for the person; empty for nothing.
    QString error() const { return m_error; }

    /// Finds nothing while there is an error.
    const Zorv::CodeFind& find() const { return m_find; }

    /// What is written in place of a match: with an expression \n is a line end and \t a tab.
    QString replacement(const QString& with) const;

private:
    QString m_text;
    int m_options;
    QString m_error;
    Zorv::CodeFind m_find;
};

}  // namespace App
