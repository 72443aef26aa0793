#include "image/tools/straightline_p.h"

#include <QtMath>

#include <algorithm>
#include <cstdlib>

// A line with runs of n pixels has the slope 1/n. For each n from 1 to 4, the number of runs is
// chosen so that the end of the line is nearest to the pointer; the horizontal or vertical line is
// one more candidate. The candidate whose end is nearest to the pointer wins.

namespace Zorv {

namespace {

const int LongestRun = 4;

double squaredLength(const QPoint& vector)
{
    const double x = vector.x();
    const double y = vector.y();
    return x * x + y * y;
}

}  // namespace

StraightLine StraightLine::towards(const QPoint& from, const QPoint& to)
{
    const QPoint span(std::abs(to.x() - from.x()), std::abs(to.y() - from.y()));
    const QPoint right(to.x() < from.x() ? -1 : 1, 0);
    const QPoint down(0, to.y() < from.y() ? -1 : 1);
    const bool isWide = span.x() >= span.y();
    const int longer = (isWide ? span.x() : span.y()) + 1;
    const int shorter = (isWide ? span.y() : span.x()) + 1;
    StraightLine nearest = {from, isWide ? right : down, {}, longer, 1};
    double distance = squaredLength(to - nearest.end());
    for (int length = 1; length <= LongestRun; ++length) {
        StraightLine line = nearest;
        line.across = isWide ? down : right;
        line.length = length;
        // Projects the pointer onto a line that goes `length` pixels along for each step across.
        const double foot = (double(longer) * length + shorter) / (length * length + 1.0);
        line.runs = std::max(1, qRound(foot));
        const double other = squaredLength(to - line.end());
        if (other < distance) {
            distance = other;
            nearest = line;
        }
    }
    return nearest;
}

}  // namespace Zorv
