#include "family/redundantlines.h"

// Everything is decided before the first edit: which lines to remove and which frames to prolong.
// The edits then run from the bottom up, so that the line numbers above stay valid.

#include "family/familyanimations.h"
#include "family/grammar/framereader.h"
#include "family/nodes/animationnode.h"
#include "family/nodes/boxnode.h"
#include "family/nodes/framenode.h"
#include "family/nodes/lineedit.h"

#include <zorv/code/codedoc/codedocument.h>
#include <zorv/code/codedoc/codelines.h>

#include <QTextBlock>

#include <algorithm>
#include <array>
#include <set>
#include <vector>

namespace Family {

namespace {

/// The type of a box and its four numbers.
using Box = std::array<int, 5>;

Box boxOf(const BoxNode* node)
{
    const QRect rect = node->rect();
    return {node->isAttack(), rect.left(), rect.top(), rect.right(), rect.bottom()};
}

/// Lines to remove; or, if `last` is -1, a frame on line `first` that gets another time.
struct Edit
{
    int first;
    int last;
    int delay;
};

/// Walks over the lines of one animation.
class AnimationWalk
{
public:
    AnimationWalk(const AnimationNode* animation, std::vector<Edit>* edits);

private:
    void visitFrame(const FrameNode* frame, int line);
    bool canGo(int first, int last) const;
    bool canStay(int line) const;
    bool canJoin(const FrameData& data) const;
    void leaveFrame();

    const Zorv::CodeDocument* m_document;
    std::vector<Edit>* m_edits;
    int m_first;                 // first line of the next frame
    std::set<Box> m_boxes;       // of the next frame, as read so far
    std::vector<int> m_repeats;  // lines of the boxes that it already has

    // The frame that the next one may be merged into.
    int m_line = -1;
    int m_ownDelay = 0;
    FrameData m_data;
    std::set<Box> m_dataBoxes;
};

AnimationWalk::AnimationWalk(const AnimationNode* animation, std::vector<Edit>* edits)
    : m_document(animation->document()), m_edits(edits),
      m_first(animation->block().blockNumber() + 1)
{
    const int end = qMin(animation->lastLine() + 1, m_document->blockCount());
    QTextBlock block = m_document->findBlockByNumber(m_first);
    for (int line = m_first; line < end; ++line, block = block.next()) {
        const Zorv::CodeNode* node = m_document->nodeInBlock(block);
        if (const auto* frame = dynamic_cast<const FrameNode*>(node)) {
            visitFrame(frame, line);
        } else if (const auto* box = dynamic_cast<const BoxNode*>(node)) {
            if (!m_boxes.insert(boxOf(box)).second) {
                m_repeats.push_back(line);
            }
        }
    }
    leaveFrame();
}

void AnimationWalk::visitFrame(const FrameNode* frame, int line)
{
    const FrameData& data = frame->data();
    if (canJoin(data) && canGo(m_first, line) && canStay(m_line)) {
        m_edits->push_back({m_first, line, 0});
        m_data.delay = data.delay < 0 ? -1 : m_data.delay + data.delay;
    } else {
        leaveFrame();
        for (const int repeat : m_repeats) {
            if (canGo(repeat, repeat)) {
                m_edits->push_back({repeat, repeat, 0});
            }
        }
        m_line = line;
        m_data = data;
        m_ownDelay = data.delay;
        m_dataBoxes.swap(m_boxes);
    }
    m_boxes.clear();
    m_repeats.clear();
    m_first = line + 1;
}

bool AnimationWalk::canJoin(const FrameData& data) const
{
    FrameData same = m_data;
    same.delay = data.delay;
    same.loop = false;
    const double most = frameOption(DelayOption).maximum;
    return m_line >= 0 && m_data.delay >= 0 && m_data.delay + data.delay <= most && data == same &&
           m_boxes == m_dataBoxes;
}

/// True if removing the lines loses nothing: they are empty, or boxes and frames without a comment
/// and without a problem. The user must still look at a line with a problem.
bool AnimationWalk::canGo(int first, int last) const
{
    for (int line = first; line <= last; ++line) {
        const QTextBlock block = m_document->findBlockByNumber(line);
        const Zorv::CodeNode* node = m_document->nodeInBlock(block);
        if (!node && !block.text().trimmed().isEmpty()) {
            return false;
        }
        if (node) {
            const NodeLine parts(node);
            const bool isBoxOrFrame = node->type() == Zorv::CodeNode::Frame ||
                                      dynamic_cast<const BoxNode*>(node) != nullptr;
            if (!isBoxOrFrame || !parts.details.problems.isEmpty() ||
                parts.details.part(LinePart::Comment)) {
                return false;
            }
        }
    }
    return true;
}

/// A frame with a problem is not a valid reference and must not get another frame's time.
bool AnimationWalk::canStay(int line) const
{
    const QTextBlock block = m_document->findBlockByNumber(line);
    return NodeLine(m_document->nodeInBlock(block)).details.problems.isEmpty();
}

void AnimationWalk::leaveFrame()
{
    if (m_line >= 0 && m_data.delay != m_ownDelay) {
        m_edits->push_back({m_line, -1, m_data.delay});
    }
    m_line = -1;
}

void tell(const Zorv::CodeDocument* document, const std::vector<Edit>& edits, QStringList* lines)
{
    const auto textOf = [document](int line) {
        return document->findBlockByNumber(line).text().trimmed();
    };
    for (auto edit = edits.rbegin(); edit != edits.rend(); ++edit) {
        if (edit->last < 0) {
            lines->append(QStringLiteral("%1: %2 -> delay %3")
                              .arg(QString::number(edit->first + 1), textOf(edit->first),
                                   QString::number(edit->delay)));
        }
        for (int line = edit->first; line <= edit->last; ++line) {
            if (!textOf(line).isEmpty()) {
                lines->append(
                    QStringLiteral("%1: %2").arg(QString::number(line + 1), textOf(line)));
            }
        }
    }
}

/// From the bottom up.
void applyEdits(FamilyAnimations* animations, const std::vector<Edit>& edits)
{
    Zorv::CodeDocument* document = animations->document();
    animations->beginChange(FamilyAnimations::tr("Remove redundant lines"));
    for (const Edit& edit : edits) {
        if (edit.last >= 0) {
            Zorv::removeLines(document, edit.first, edit.last);
            continue;
        }
        Zorv::CodeNode* node = document->nodeInBlock(document->findBlockByNumber(edit.first));
        if (auto* frame = dynamic_cast<FrameNode*>(node)) {
            frame->setDelay(edit.delay);
        }
    }
    animations->endChange();
}

}  // namespace

int removeRedundantLines(FamilyAnimations* animations, bool dryRun, QStringList* lines)
{
    Zorv::CodeDocument* document = animations->document();
    std::vector<Edit> edits;
    for (int i = 0; i < animations->count(); ++i) {
        const AnimationWalk walk(animations->animation(i), &edits);
    }
    std::sort(edits.begin(), edits.end(),
              [](const Edit& a, const Edit& b) { return a.first > b.first; });
    if (lines) {
        tell(document, edits, lines);
    }
    int count = 0;
    for (const Edit& edit : edits) {
        count += edit.last >= 0 ? edit.last - edit.first + 1 : 0;
    }
    if (!dryRun && !edits.empty()) {
        applyEdits(animations, edits);
    }
    return count;
}

}  // namespace Family
