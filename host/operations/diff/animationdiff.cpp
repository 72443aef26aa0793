#include "operations/diff/animationdiff.h"

#include "family/grammar/linereader.h"
#include "family/nodes/animationnode.h"
#include "family/nodes/frameedit.h"
#include "family/nodes/framenode.h"
#include "operations/diff/boxmatching.h"
#include "operations/linediff.h"

#include <zorv/code/codedoc/contactboxescode.h>

#include <algorithm>

// Each frame becomes a line of text, and the line diff matches the equal frames. Between two
// matched frames lies a run of old and new frames that all differ. There, dynamic programming finds
// the cheapest way from old to new: keep a frame with changes (the cost grows with the number of
// different values), remove one, or insert one. The cost table is filled from the end, so the
// result can be read from the start.

namespace Operations {

using Family::AnimationNode;
using Family::FrameData;
using Family::FrameNode;

namespace {

const QString spriteName = QStringLiteral("sprite");

QString spriteText(const FrameData& data)
{
    return QStringLiteral("%1,%2").arg(QString::number(data.group), QString::number(data.number));
}

QVector<OptionDiff> diffOptions(const FrameData& before, const FrameData& after)
{
    QVector<OptionDiff> result;
    if (spriteText(before) != spriteText(after)) {
        result.append({spriteName, spriteText(before), spriteText(after)});
    }
    for (int option = 0; option < Family::FrameOptionCount; ++option) {
        const QString oldText = Family::optionText(option, before);
        const QString newText = Family::optionText(option, after);
        if (oldText != newText) {
            result.append({Family::frameOption(option).name, oldText, newText});
        }
    }
    return result;
}

/// Everything that a frame contains as one line, so that the line diff can find equal frames.
QString lineOf(const FrameRecord& frame)
{
    QString line = spriteText(frame.data);
    for (int option = 0; option < Family::FrameOptionCount; ++option) {
        line += QLatin1Char(' ') + Family::optionText(option, frame.data);
    }
    for (const BoxRecord& box : frame.boxes) {
        line += QStringLiteral(" %1 %2 %3 %4 %5")
                    .arg(QString::number(int(box.isAttack)), QString::number(box.rect.left()),
                         QString::number(box.rect.top()), QString::number(box.rect.right()),
                         QString::number(box.rect.bottom()));
    }
    return line;
}

QVector<QStringRef> refs(const QStringList& lines)
{
    QVector<QStringRef> result;
    for (const QString& line : lines) {
        result.append(QStringRef(&line));
    }
    return result;
}

QStringList linesOf(const QVector<FrameRecord>& frames)
{
    QStringList lines;
    for (const FrameRecord& frame : frames) {
        lines.append(lineOf(frame));
    }
    return lines;
}

FrameDiff diffFrame(const QVector<FrameRecord>& oldFrames, int oldFrame,
                    const QVector<FrameRecord>& newFrames, int newFrame)
{
    FrameDiff diff;
    diff.oldFrame = oldFrame;
    diff.newFrame = newFrame;
    if (oldFrame < 0 || newFrame < 0) {
        diff.kind = oldFrame < 0 ? DiffKind::Added : DiffKind::Removed;
        return diff;
    }
    diff.options = diffOptions(oldFrames[oldFrame].data, newFrames[newFrame].data);
    diff.boxes = diffBoxes(oldFrames[oldFrame].boxes, newFrames[newFrame].boxes);
    const bool isSame = diff.options.isEmpty() && diff.boxes.isEmpty();
    diff.kind = isSame ? DiffKind::Same : DiffKind::Changed;
    return diff;
}

// The cost of changing one frame into another. Removing one and inserting the other costs
// `Replace`, half for each.
constexpr int Replace = 8;
constexpr int OtherSprite = 4;
constexpr int MostForBoxes = 3;

int costOf(const FrameRecord& before, const FrameRecord& after)
{
    const FrameData& a = before.data;
    const FrameData& b = after.data;
    int cost = a.group != b.group || a.number != b.number ? OtherSprite : 0;
    cost += int(a.offset != b.offset) + int(a.delay != b.delay) + int(a.flip != b.flip) +
            int(a.loop != b.loop) + int(a.scaleX != b.scaleX || a.scaleY != b.scaleY) +
            int(a.angle != b.angle);
    const int boxes = std::min(std::max(before.boxes.size(), after.boxes.size()), 16);
    int unequal = 0;
    for (int i = 0; i < boxes; ++i) {
        unequal += int(!(before.boxes.value(i) == after.boxes.value(i)));
    }
    return cost + std::min(unequal, MostForBoxes);
}

// With more pairs, frames are paired by position, because the cost table would be too large.
constexpr qint64 MostPairs = 1 << 22;

/// Pairs the frames of a run without equal frames, with the smallest total cost.
class RunAlignment
{
public:
    RunAlignment(const QVector<FrameRecord>& oldFrames, const QVector<FrameRecord>& newFrames,
                 const DiffRun& run)
        : m_old(oldFrames), m_new(newFrames), m_run(run)
    {
        if (qint64(run.oldCount + 1) * (run.newCount + 1) <= MostPairs) {
            fill();
        }
    }

    void appendTo(QVector<FrameDiff>* diffs) const
    {
        int i = 0;
        int j = 0;
        while (i < m_run.oldCount || j < m_run.newCount) {
            const bool hasBoth = i < m_run.oldCount && j < m_run.newCount;
            const bool pairs = hasBoth && (m_costs.isEmpty() || at(i, j) == pairCost(i, j));
            const bool removes = !pairs && i < m_run.oldCount &&
                                 (!hasBoth || at(i, j) == at(i + 1, j) + Replace / 2);
            diffs->append(diffFrame(m_old, pairs || removes ? m_run.oldStart + i : -1, m_new,
                                    removes ? -1 : m_run.newStart + j));
            i += int(pairs || removes);
            j += int(!removes);
        }
    }

private:
    /// The smallest cost for all frames from these on.
    int at(int i, int j) const { return m_costs[i * (m_run.newCount + 1) + j]; }

    int pairCost(int i, int j) const
    {
        return at(i + 1, j + 1) + costOf(m_old[m_run.oldStart + i], m_new[m_run.newStart + j]);
    }

    void fill()
    {
        const int width = m_run.newCount + 1;
        m_costs.fill(0, (m_run.oldCount + 1) * width);
        for (int i = m_run.oldCount; i >= 0; --i) {
            for (int j = m_run.newCount; j >= 0; --j) {
                const int rest = (m_run.oldCount - i + m_run.newCount - j) * (Replace / 2);
                int cost = rest;
                if (i < m_run.oldCount && j < m_run.newCount) {
                    cost = std::min(
                        {pairCost(i, j), at(i + 1, j) + Replace / 2, at(i, j + 1) + Replace / 2});
                }
                m_costs[i * width + j] = cost;
            }
        }
    }

    const QVector<FrameRecord>& m_old;
    const QVector<FrameRecord>& m_new;
    DiffRun m_run;
    QVector<int> m_costs;  // empty if the run is too large
};

}  // namespace

bool BoxRecord::operator==(const BoxRecord& other) const
{
    return isAttack == other.isAttack && rect == other.rect;
}

bool FrameRecord::operator==(const FrameRecord& other) const
{
    return data == other.data && boxes == other.boxes;
}

QVector<FrameRecord> frameRecords(const AnimationNode& animation)
{
    QVector<FrameRecord> result;
    const QList<Zorv::FrameCode*> frames = animation.frames();
    for (const Zorv::FrameCode* frame : frames) {
        FrameRecord record{static_cast<const FrameNode*>(frame)->data(), {}};
        for (const auto type : {Zorv::ContactBoxCode::Attack, Zorv::ContactBoxCode::Collision}) {
            const Zorv::ContactBoxesCode* boxes = frame->contactBoxes(type);
            for (int i = 0; i < boxes->count(); ++i) {
                record.boxes.append({type == Zorv::ContactBoxCode::Attack, boxes->at(i)->rect()});
            }
        }
        result.append(record);
    }
    return result;
}

QVector<FrameDiff> diffFrames(const QVector<FrameRecord>& oldFrames,
                              const QVector<FrameRecord>& newFrames)
{
    const QStringList oldLines = linesOf(oldFrames);
    const QStringList newLines = linesOf(newFrames);
    QVector<DiffRun> runs = diffLines(refs(oldLines), refs(newLines));
    runs.append({oldFrames.size(), 0, newFrames.size(), 0});
    QVector<FrameDiff> result;
    int oldFrame = 0;
    int newFrame = 0;
    for (const DiffRun& run : qAsConst(runs)) {
        while (oldFrame < run.oldStart) {
            result.append(diffFrame(oldFrames, oldFrame++, newFrames, newFrame++));
        }
        RunAlignment(oldFrames, newFrames, run).appendTo(&result);
        oldFrame = run.oldStart + run.oldCount;
        newFrame = run.newStart + run.newCount;
    }
    return result;
}

}  // namespace Operations
