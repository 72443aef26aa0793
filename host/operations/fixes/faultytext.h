#pragma once

#include "family/check/problem.h"
#include "family/grammar/filekind.h"
#include "family/grammar/linereader.h"

#include <QStringList>

namespace Operations {

/// A text split into lines. Indexes after the end are clamped to the last line, because what is
/// known of a text may be older than the text.
class TextLines
{
public:
    explicit TextLines(const QString& text);

    int count() const { return m_starts.size(); }
    QString line(int index) const;
    int start(int index) const { return m_starts.at(inside(index)); }
    int end(int index) const { return start(index) + line(index).size(); }

    /// True for the head of an animation or of a group that is no sub-group.
    bool isHead(int index) const;

    /// The last non-empty line of the block that starts with a head.
    int lastOf(int head) const;

    /// The first of the comment lines directly above a line; the line itself if there are none.
    int firstAbove(int index) const;

private:
    int inside(int index) const { return qBound(0, index, count() - 1); }

    QString m_text;
    QVector<int> m_starts;
};

/// A line with a problem, parsed as the check parses it.
struct FaultyLine
{
    FaultyLine(const QString& text, const Family::Problem& problem, Family::FileKind fileKind);

    /// False if the text does not have such a line.
    bool isValid() const { return index >= 0; }

    /// The text that the problem refers to.
    QString word() const { return line.mid(column, length); }

    /// The position in the text of a column of the line.
    int at(int place) const { return lines.start(index) + place; }

    /// Where the code ends and blanks or a comment begin.
    int codeEnd() const;

    TextLines lines;
    Family::FileKind kind;
    int index = -1;  // of the line, from 0
    QString line;
    int column = 0;  // from 0
    int length = 0;
    Family::LineHead head;
    Family::ParsedLine parsed;
    Family::LineDetails details;
};

}  // namespace Operations
