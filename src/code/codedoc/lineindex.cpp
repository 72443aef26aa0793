#include "code/codedoc/lineindex_p.h"

#include "code/codedoc/codedocument_p.h"
#include "code/codedoc/ordertree_p.h"

#include <algorithm>
#include <limits>

namespace Zorv {

struct LineTraits
{
    static constexpr qint16 NoLevel = std::numeric_limits<qint16>::max();

    static CodeBlockData*& up(CodeBlockData* line) { return line->d->up; }
    static CodeBlockData*& left(CodeBlockData* line) { return line->d->left; }
    static CodeBlockData*& right(CodeBlockData* line) { return line->d->right; }

    static bool pull(CodeBlockData* line)
    {
        CodeBlockDataPrivate& d = *line->d;
        quint16 traits = d.traits;
        qint16 lowest = hasLevel(line) ? d.foldingIndent : NoLevel;
        for (const CodeBlockData* part : {d.left, d.right}) {
            if (part) {
                traits |= part->d->traitsBelow;
                lowest = std::min(lowest, part->d->lowestBelow);
            }
        }
        const bool changed = traits != d.traitsBelow || lowest != d.lowestBelow;
        d.traitsBelow = traits;
        d.lowestBelow = lowest;
        return changed;
    }

    static bool hasLevel(const CodeBlockData* line)
    {
        return (line->d->traits & CodeBlockDataPrivate::HasClass) != 0;
    }
    static qint16& level(CodeBlockData* line) { return line->d->foldingIndent; }
    static qint16 lowest(const CodeBlockData* line) { return line->d->lowestBelow; }

    static quint16& own(CodeBlockData* line) { return line->d->traits; }
    static quint16 below(CodeBlockData* line) { return line->d->traitsBelow; }
};

using LineTree = OrderTree<CodeBlockData, LineTraits>;

void LineIndex::insert(CodeBlockData* above, CodeBlockData* line)
{
    LineTree::insertAfter(m_root, above, line);
}

void LineIndex::remove(CodeBlockData* line)
{
    LineTree::remove(m_root, line);
}

void LineIndex::setTraits(CodeBlockData* line, quint16 traits)
{
    if (LineTraits::own(line) != traits) {
        LineTraits::own(line) = traits;
        LineTree::update(line);
    }
}

void LineIndex::setFoldingIndent(CodeBlockData* line, qint16 indent)
{
    if (LineTraits::level(line) != indent) {
        LineTraits::level(line) = indent;
        LineTree::update(line);
    }
}

/// Checks the root first, so that a trait that no line has costs nothing. In a large file, walking
/// up the tree means many cache misses.
bool LineIndex::isAnywhere(const CodeBlockData* line, quint16 traits)
{
    CodeBlockData* root = line->d->owner->lines.m_root;
    return root && (LineTraits::below(root) & traits) != 0;
}

CodeBlockData* LineIndex::backward(const CodeBlockData* line, quint16 traits)
{
    if (!isAnywhere(line, traits)) {
        return nullptr;
    }
    return LineTree::findBackward(
        const_cast<CodeBlockData*>(line),
        [traits](CodeBlockData* l) { return (LineTraits::own(l) & traits) != 0; },
        [traits](CodeBlockData* l) { return (LineTraits::below(l) & traits) != 0; });
}

CodeBlockData* LineIndex::forward(const CodeBlockData* line, quint16 traits)
{
    if (!isAnywhere(line, traits)) {
        return nullptr;
    }
    return LineTree::findForward(
        const_cast<CodeBlockData*>(line),
        [traits](CodeBlockData* l) { return (LineTraits::own(l) & traits) != 0; },
        [traits](CodeBlockData* l) { return (LineTraits::below(l) & traits) != 0; });
}

CodeBlockData* LineIndex::last(const CodeBlockData* line, quint16 traits)
{
    CodeBlockData* end = LineTree::last(LineTree::rootOf(const_cast<CodeBlockData*>(line)));
    return (LineTraits::own(end) & traits) ? end : backward(end, traits);
}

CodeBlockData* LineIndex::backwardBelow(const CodeBlockData* line, int level)
{
    return LineTree::findBackward(
        const_cast<CodeBlockData*>(line),
        [level](CodeBlockData* l) {
            return LineTraits::hasLevel(l) && LineTraits::level(l) < level;
        },
        [level](CodeBlockData* l) { return LineTraits::lowest(l) < level; });
}

CodeBlockData* LineIndex::forwardBelow(const CodeBlockData* line, int level)
{
    return LineTree::findForward(
        const_cast<CodeBlockData*>(line),
        [level](CodeBlockData* l) {
            return LineTraits::hasLevel(l) && LineTraits::level(l) < level;
        },
        [level](CodeBlockData* l) { return LineTraits::lowest(l) < level; });
}

CodeBlockData* LineIndex::above(const CodeBlockData* line)
{
    return LineTree::previous(const_cast<CodeBlockData*>(line));
}

CodeBlockData* LineIndex::below(const CodeBlockData* line)
{
    return LineTree::next(const_cast<CodeBlockData*>(line));
}

}  // namespace Zorv
