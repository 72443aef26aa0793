#include "operations/diff/boxmatching.h"

#include <algorithm>
#include <cstdlib>

// Within each kind, the pairs of boxes are sorted by the distance of their edges, then by the
// difference of their places. They are taken greedily: a pair counts if neither box has a partner
// yet. Equal boxes have distance 0, so they are matched first. Boxes left over were added or
// removed.

namespace Operations {

namespace {

/// Boxes of one kind, each with the index of its partner in the other frame, or -1.
struct Side
{
    QVector<QRect> rects;
    QVector<int> partners;

    Side(const QVector<BoxRecord>& boxes, bool attack)
    {
        for (const BoxRecord& box : boxes) {
            if (box.isAttack == attack) {
                rects.append(box.rect);
            }
        }
        partners.fill(-1, rects.size());
    }
};

qint64 distance(const QRect& a, const QRect& b)
{
    return std::abs(qint64(a.left()) - b.left()) + std::abs(qint64(a.top()) - b.top()) +
           std::abs(qint64(a.right()) - b.right()) + std::abs(qint64(a.bottom()) - b.bottom());
}

struct Candidate
{
    qint64 distance;
    int oldPlace;
    int newPlace;
};

// With more candidates, boxes are paired by position, because the time grows with the number of
// pairs.
constexpr qint64 MostCandidates = 1 << 20;

QVector<Candidate> candidates(const Side& before, const Side& after)
{
    QVector<Candidate> result;
    const bool isMuch = qint64(before.rects.size()) * after.rects.size() > MostCandidates;
    for (int i = 0; i < before.rects.size(); ++i) {
        const int first = isMuch ? std::min(i, after.rects.size()) : 0;
        const int end = isMuch ? std::min(i + 1, after.rects.size()) : after.rects.size();
        for (int j = first; j < end; ++j) {
            result.append({distance(before.rects[i], after.rects[j]), i, j});
        }
    }
    std::stable_sort(result.begin(), result.end(), [](const Candidate& a, const Candidate& b) {
        return a.distance != b.distance
                   ? a.distance < b.distance
                   : std::abs(a.oldPlace - a.newPlace) < std::abs(b.oldPlace - b.newPlace);
    });
    return result;
}

void diffKind(const QVector<BoxRecord>& oldBoxes, const QVector<BoxRecord>& newBoxes, bool attack,
              QVector<BoxDiff>* result)
{
    Side before(oldBoxes, attack);
    Side after(newBoxes, attack);
    const QVector<Candidate> pairs = candidates(before, after);
    for (const Candidate& pair : pairs) {
        if (before.partners[pair.oldPlace] < 0 && after.partners[pair.newPlace] < 0) {
            before.partners[pair.oldPlace] = pair.newPlace;
            after.partners[pair.newPlace] = pair.oldPlace;
        }
    }
    for (int i = 0; i < before.rects.size(); ++i) {
        const int partner = before.partners[i];
        if (partner < 0) {
            result->append({DiffKind::Removed, attack, i, -1, before.rects[i], {}});
        } else if (before.rects[i] != after.rects[partner]) {
            result->append(
                {DiffKind::Changed, attack, i, partner, before.rects[i], after.rects[partner]});
        }
    }
    for (int i = 0; i < after.rects.size(); ++i) {
        if (after.partners[i] < 0) {
            result->append({DiffKind::Added, attack, -1, i, {}, after.rects[i]});
        }
    }
}

}  // namespace

QVector<BoxDiff> diffBoxes(const QVector<BoxRecord>& oldBoxes, const QVector<BoxRecord>& newBoxes)
{
    QVector<BoxDiff> result;
    diffKind(oldBoxes, newBoxes, true, &result);
    diffKind(oldBoxes, newBoxes, false, &result);
    return result;
}

}  // namespace Operations
