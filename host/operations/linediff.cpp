#include "operations/linediff.h"

#include <QHash>

#include <algorithm>

// First, equal lines at both ends of the texts are matched. Then every line that occurs exactly
// once in each text becomes an anchor. Of the anchors, the longest sequence in the same order on
// both sides is kept (by patience sorting), and the parts between them are matched recursively. A
// part without unique lines is matched by Myers' greedy algorithm, which finds the smallest
// difference. If that exceeds MaxDistance, the rest of the part counts as different. So the time
// stays bounded even if a file was completely rewritten.

namespace Operations {

namespace {

// Above this number of changes, the search for the smallest difference gives up.
const int MaxDistance = 400;

// Maximum recursion depth of the search for unique lines.
const int MaxDepth = 32;

struct Range
{
    int begin;
    int end;
    int size() const { return end - begin; }
};

using LinePair = QPair<int, int>;

// Chooses the better of two ways to diagonal k: an inserted line from the diagonal above, or a
// deleted line from the diagonal below.
bool isNewLine(const QVector<int>& row, int at, int k, int distance)
{
    return k == -distance || (k != distance && row[at - 1] < row[at + 1]);
}

int furthestStart(const QVector<int>& row, int at, int k, int distance)
{
    if (distance == 0) {
        return 0;
    }
    return isNewLine(row, at, k, distance) ? row[at + 1] : row[at - 1] + 1;
}

/// The longest subsequence of pairs that ascends on both sides, by patience sorting. The pairs
/// ascend on the first side already.
QVector<LinePair> longestAscending(const QVector<LinePair>& pairs)
{
    QVector<int> previous;
    QVector<int> tops;
    for (int i = 0; i < pairs.size(); ++i) {
        const auto top =
            std::lower_bound(tops.begin(), tops.end(), pairs[i].second,
                             [&pairs](int at, int line) { return pairs[at].second < line; });
        previous.append(top == tops.begin() ? -1 : *(top - 1));
        if (top == tops.end()) {
            tops.append(i);
        } else {
            *top = i;
        }
    }
    QVector<LinePair> result;
    for (int at = tops.isEmpty() ? -1 : tops.last(); at >= 0; at = previous[at]) {
        result.append(pairs[at]);
    }
    std::reverse(result.begin(), result.end());
    return result;
}

/// Matches the lines of both texts; what has no partner differs.
class LineMatcher
{
public:
    LineMatcher(const QVector<QStringRef>& oldLines, const QVector<QStringRef>& newLines);

    QVector<DiffRun> runs() const;

private:
    void match(Range a, Range b, int depth);
    void trim(Range* a, Range* b);
    QVector<LinePair> uniquePairs(Range a, Range b) const;
    QVector<QVector<int>> searchSmallest(Range a, Range b) const;
    void matchSmallest(Range a, Range b);
    void pair(int oldLine, int newLine) { m_partner[oldLine] = newLine; }

    QVector<int> m_old;  ///< a number for each line, the same for equal texts
    QVector<int> m_new;
    QVector<int> m_partner;  ///< for each old line: the new line, -1 for none
};

LineMatcher::LineMatcher(const QVector<QStringRef>& oldLines, const QVector<QStringRef>& newLines)
    : m_partner(oldLines.size(), -1)
{
    QHash<QStringRef, int> numbers;
    const auto number = [&numbers](const QStringRef& line) {
        const auto known = numbers.constFind(line);
        return known != numbers.constEnd() ? *known : *numbers.insert(line, numbers.size());
    };
    std::transform(oldLines.begin(), oldLines.end(), std::back_inserter(m_old), number);
    std::transform(newLines.begin(), newLines.end(), std::back_inserter(m_new), number);
    match({0, m_old.size()}, {0, m_new.size()}, 0);
}

void LineMatcher::match(Range a, Range b, int depth)
{
    trim(&a, &b);
    if (a.size() == 0 || b.size() == 0) {
        return;
    }
    QVector<LinePair> fixed;
    if (depth < MaxDepth) {
        fixed = longestAscending(uniquePairs(a, b));
    }
    if (fixed.isEmpty()) {
        matchSmallest(a, b);
        return;
    }
    fixed.append({a.end, b.end});
    Range oldPart{a.begin, a.begin};
    Range newPart{b.begin, b.begin};
    for (const LinePair& anchor : qAsConst(fixed)) {
        oldPart.end = anchor.first;
        newPart.end = anchor.second;
        match(oldPart, newPart, depth + 1);
        if (anchor.first < a.end) {
            pair(anchor.first, anchor.second);
        }
        oldPart.begin = anchor.first + 1;
        newPart.begin = anchor.second + 1;
    }
}

void LineMatcher::trim(Range* a, Range* b)
{
    while (a->size() > 0 && b->size() > 0 && m_old[a->begin] == m_new[b->begin]) {
        pair(a->begin++, b->begin++);
    }
    while (a->size() > 0 && b->size() > 0 && m_old[a->end - 1] == m_new[b->end - 1]) {
        pair(--a->end, --b->end);
    }
}

// The lines that occur exactly once on each side.
QVector<LinePair> LineMatcher::uniquePairs(Range a, Range b) const
{
    struct Place
    {
        int count = 0;
        int line = -1;
    };
    QHash<int, Place> inNew;
    QHash<int, int> inOld;
    for (int i = b.begin; i < b.end; ++i) {
        Place& place = inNew[m_new[i]];
        ++place.count;
        place.line = i;
    }
    for (int i = a.begin; i < a.end; ++i) {
        ++inOld[m_old[i]];
    }
    QVector<LinePair> pairs;
    for (int i = a.begin; i < a.end; ++i) {
        const Place place = inNew.value(m_old[i]);
        if (place.count == 1 && inOld.value(m_old[i]) == 1) {
            pairs.append({i, place.line});
        }
    }
    return pairs;
}

// Myers' greedy search. reach[k] is the furthest old line on diagonal k after a number of changes.
// Returns a copy of it for each number of changes, taken before the step. Empty if the search gives
// up.
QVector<QVector<int>> LineMatcher::searchSmallest(Range a, Range b) const
{
    const int limit = std::min(MaxDistance, a.size() + b.size());
    const int middle = limit + 1;
    QVector<QVector<int>> rows;
    QVector<int> reach(2 * limit + 3, 0);
    for (int distance = 0; distance <= limit; ++distance) {
        rows.append(reach);
        for (int k = -distance; k <= distance; k += 2) {
            int x = furthestStart(reach, middle + k, k, distance);
            while (x < a.size() && x - k < b.size() &&
                   m_old[a.begin + x] == m_new[b.begin + x - k]) {
                ++x;
            }
            reach[middle + k] = x;
            if (k == a.size() - b.size() && x == a.size()) {
                return rows;
            }
        }
    }
    return {};
}

void LineMatcher::matchSmallest(Range a, Range b)
{
    const QVector<QVector<int>> rows = searchSmallest(a, b);
    int x = a.size();
    int y = b.size();
    for (int distance = rows.size() - 1; distance >= 0; --distance) {
        const QVector<int>& row = rows[distance];
        const int k = x - y;
        const int at = row.size() / 2 + k;
        const int start = furthestStart(row, at, k, distance);
        while (x > start) {
            pair(a.begin + --x, b.begin + --y);
        }
        // One change back: an insertion keeps x, a deletion keeps y.
        if (isNewLine(row, at, k, distance)) {
            --y;
        } else {
            --x;
        }
    }
}

QVector<DiffRun> LineMatcher::runs() const
{
    QVector<DiffRun> result;
    int oldLine = 0;
    int newLine = 0;
    while (oldLine < m_old.size() || newLine < m_new.size()) {
        if (oldLine < m_old.size() && m_partner[oldLine] == newLine) {
            ++oldLine;
            ++newLine;
            continue;
        }
        DiffRun run{oldLine, 0, newLine, 0};
        while (oldLine < m_old.size() && m_partner[oldLine] < 0) {
            ++oldLine;
        }
        newLine = oldLine < m_old.size() ? m_partner[oldLine] : m_new.size();
        run.oldCount = oldLine - run.oldStart;
        run.newCount = newLine - run.newStart;
        result.append(run);
    }
    return result;
}

}  // namespace

QVector<DiffRun> diffLines(const QVector<QStringRef>& oldLines, const QVector<QStringRef>& newLines)
{
    return LineMatcher(oldLines, newLines).runs();
}

}  // namespace Operations
