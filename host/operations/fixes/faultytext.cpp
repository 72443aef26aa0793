#include "operations/fixes/faultytext.h"

#include <algorithm>

namespace Operations {

using Family::LineHead;
using Family::ParsedLine;

TextLines::TextLines(const QString& text) : m_text(text)
{
    for (int start = 0; start >= 0;) {
        m_starts.append(start);
        const int end = text.indexOf(QLatin1Char('\n'), start);
        start = end < 0 ? -1 : end + 1;
    }
}

QString TextLines::line(int index) const
{
    index = inside(index);
    const int start = m_starts.at(index);
    const int end = index + 1 < m_starts.size() ? m_starts.at(index + 1) - 1 : m_text.size();
    return m_text.mid(start, end - start);
}

bool TextLines::isHead(int index) const
{
    const QString code = line(index).trimmed();
    return (code.startsWith(QLatin1Char('[')) &&
            !code.mid(1).trimmed().startsWith(QLatin1Char('.'))) ||
           (code.startsWith(QLatin1String("animation")) && !code.contains(QLatin1Char('=')));
}

int TextLines::lastOf(int head) const
{
    int last = inside(head);
    for (int i = head + 1; i < count() && !isHead(i); ++i) {
        const QString code = line(i).trimmed();
        if (!code.isEmpty() && !code.startsWith(QLatin1Char('#'))) {
            last = i;
        }
    }
    return last;
}

int TextLines::firstAbove(int index) const
{
    while (index > 0 && line(index - 1).trimmed().startsWith(QLatin1Char('#'))) {
        --index;
    }
    return index;
}

FaultyLine::FaultyLine(const QString& text, const Family::Problem& problem,
                       Family::FileKind fileKind)
    : lines(text), kind(fileKind)
{
    if (problem.line < 1 || problem.line > lines.count()) {
        return;
    }
    index = problem.line - 1;
    line = lines.line(index);
    column = std::min(problem.column - 1, line.size());
    length = std::min(problem.length, line.size() - column);
    Family::LineReport nothing(nullptr);
    for (int i = 0; i < index; ++i) {
        const ParsedLine above = Family::readLine(lines.line(i), head, kind, nothing);
        if (above.kind == ParsedLine::Group) {
            head = {LineHead::Group, above.group};
        } else if (above.kind == ParsedLine::Animation) {
            head = {LineHead::Animation, nullptr};
        }
    }
    Family::LineReport report(nullptr, &details);
    parsed = Family::readLine(line, head, kind, report);
}

int FaultyLine::codeEnd() const
{
    const Family::LinePart* comment = details.part(Family::LinePart::Comment);
    int end = comment ? comment->start : line.size();
    while (end > 0 && line.at(end - 1).isSpace()) {
        --end;
    }
    return end;
}

}  // namespace Operations
