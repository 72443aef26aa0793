#include "operations/textdiff.h"

#include "operations/linediff.h"

#include <algorithm>
#include <vector>

namespace Operations {

namespace {

const int Context = 3;

// Lines include their line ends, so that a missing line end at the end of the text counts as a
// difference.
QVector<QStringRef> linesOf(const QString& text)
{
    QVector<QStringRef> lines;
    for (int start = 0; start < text.size();) {
        const int end = text.indexOf(QLatin1Char('\n'), start) + 1;
        lines.append(text.midRef(start, end > 0 ? end - start : -1));
        start += lines.last().size();
    }
    return lines;
}

QString marked(char mark, const QStringRef& line)
{
    const QString text = QLatin1Char(mark) + line.toString();
    return line.endsWith(QLatin1Char('\n'))
               ? text
               : text + QLatin1String("\n\\ No newline at end of file\n");
}

QString rangeText(int start, int count)
{
    // An empty range is given by the line before it.
    const QString line = QString::number(count == 0 ? start : start + 1);
    return count == 1 ? line : line + QLatin1Char(',') + QString::number(count);
}

/// Several runs with the context lines around them.
class Hunk
{
public:
    Hunk(const QVector<QStringRef>& oldLines, const QVector<QStringRef>& newLines,
         const DiffRun& first)
        : m_oldLines(oldLines), m_newLines(newLines), m_before(std::min(Context, first.oldStart))
    {
        m_runs.append(first);
    }

    bool reaches(const DiffRun& run) const { return run.oldStart - oldEnd() <= 2 * Context; }
    void append(const DiffRun& run) { m_runs.append(run); }
    QString text() const;

private:
    int oldEnd() const { return m_runs.last().oldStart + m_runs.last().oldCount; }
    int newEnd() const { return m_runs.last().newStart + m_runs.last().newCount; }

    const QVector<QStringRef>& m_oldLines;
    const QVector<QStringRef>& m_newLines;
    int m_before;
    QVector<DiffRun> m_runs;
};

QString Hunk::text() const
{
    const int oldStart = m_runs.first().oldStart - m_before;
    const int newStart = m_runs.first().newStart - m_before;
    const int after = std::min(Context, m_oldLines.size() - oldEnd());
    QString result = QStringLiteral("@@ -%1 +%2 @@\n")
                         .arg(rangeText(oldStart, oldEnd() + after - oldStart),
                              rangeText(newStart, newEnd() + after - newStart));
    int line = oldStart;
    for (const DiffRun& run : m_runs) {
        while (line < run.oldStart) {
            result += marked(' ', m_oldLines[line++]);
        }
        while (line < run.oldStart + run.oldCount) {
            result += marked('-', m_oldLines[line++]);
        }
        for (int i = 0; i < run.newCount; ++i) {
            result += marked('+', m_newLines[run.newStart + i]);
        }
    }
    while (line < oldEnd() + after) {
        result += marked(' ', m_oldLines[line++]);
    }
    return result;
}

}  // namespace

QString unifiedDiff(const QString& oldText, const QString& newText, const QString& oldName,
                    const QString& newName)
{
    const QVector<QStringRef> oldLines = linesOf(oldText);
    const QVector<QStringRef> newLines = linesOf(newText);
    std::vector<Hunk> hunks;
    const QVector<DiffRun> runs = diffLines(oldLines, newLines);
    for (const DiffRun& run : runs) {
        if (!hunks.empty() && hunks.back().reaches(run)) {
            hunks.back().append(run);
        } else {
            hunks.push_back(Hunk(oldLines, newLines, run));
        }
    }
    QString result;
    if (!hunks.empty()) {
        result = QStringLiteral("--- %1\n+++ %2\n").arg(oldName, newName);
    }
    for (const Hunk& hunk : hunks) {
        result += hunk.text();
    }
    return result;
}

}  // namespace Operations
