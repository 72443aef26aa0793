#include "code/codedoc/lineindex_p.h"

#include "code/codedoc/ordertree_p.h"

namespace Zorv {

struct LineTraits
{
    static CodeBlockData*& up(CodeBlockData* line) { return line->d->up; }
    static CodeBlockData*& left(CodeBlockData* line) { return line->d->left; }
    static CodeBlockData*& right(CodeBlockData* line) { return line->d->right; }

    static bool pull(CodeBlockData* line)
    {
        CodeBlockDataPrivate& d = *line->d;
        quint16 below = d.traits;
        below |= d.left ? d.left->d->traitsBelow : 0;
        below |= d.right ? d.right->d->traitsBelow : 0;
        const bool changed = below != d.traitsBelow;
        d.traitsBelow = below;
        return changed;
    }

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

CodeBlockData* LineIndex::backward(const CodeBlockData* line, quint16 traits)
{
    return LineTree::findBackward(
        const_cast<CodeBlockData*>(line),
        [traits](CodeBlockData* l) { return (LineTraits::own(l) & traits) != 0; },
        [traits](CodeBlockData* l) { return (LineTraits::below(l) & traits) != 0; });
}

CodeBlockData* LineIndex::forward(const CodeBlockData* line, quint16 traits)
{
    return LineTree::findForward(
        const_cast<CodeBlockData*>(line),
        [traits](CodeBlockData* l) { return (LineTraits::own(l) & traits) != 0; },
        [traits](CodeBlockData* l) { return (LineTraits::below(l) & traits) != 0; });
}

CodeBlockData* LineIndex::above(const CodeBlockData* line)
{
    return LineTree::previous(const_cast<CodeBlockData*>(line));
}

}  // namespace Zorv
