#include "code/codedoc/codenodelist.h"

#include "code/codedoc/ordertree_p.h"

// The list is an `OrderTree` in which each node stores the size of its subtree. To find the node at
// an index, walk down the tree and compare with these sizes. To find the index of a node, walk up
// and add the sizes of all subtrees to the left.

namespace Zorv {

struct ChildTraits
{
    static CodeNode*& up(CodeNode* node) { return node->m_sibling.up; }
    static CodeNode*& left(CodeNode* node) { return node->m_sibling.left; }
    static CodeNode*& right(CodeNode* node) { return node->m_sibling.right; }

    static unsigned size(const CodeNode* node) { return node ? node->m_siblings : 0; }

    static bool pull(CodeNode* node)
    {
        const unsigned size =
            1 + ChildTraits::size(node->m_sibling.left) + ChildTraits::size(node->m_sibling.right);
        const bool changed = size != node->m_siblings;
        node->m_siblings = size;
        return changed;
    }
};

using ChildTree = OrderTree<CodeNode, ChildTraits>;

int CodeNodeList::size() const
{
    return int(ChildTraits::size(m_root));
}

CodeNode* CodeNodeList::at(int index) const
{
    CodeNode* node = index < 0 ? nullptr : m_root;
    auto rest = unsigned(index);
    while (node) {
        const unsigned before = ChildTraits::size(ChildTraits::left(node));
        if (rest == before) {
            return node;
        }
        if (rest < before) {
            node = ChildTraits::left(node);
        } else {
            rest -= before + 1;
            node = ChildTraits::right(node);
        }
    }
    return nullptr;
}

CodeNode* CodeNodeList::last() const
{
    return ChildTree::last(m_root);
}

int CodeNodeList::indexOf(const CodeNode* node) const
{
    if (!node || !m_root) {
        return -1;
    }
    auto* item = const_cast<CodeNode*>(node);
    unsigned index = ChildTraits::size(ChildTraits::left(item));
    for (CodeNode* up = ChildTraits::up(item); up; item = up, up = ChildTraits::up(item)) {
        if (ChildTraits::right(up) == item) {
            index += ChildTraits::size(ChildTraits::left(up)) + 1;
        }
    }
    return item == m_root ? int(index) : -1;
}

void CodeNodeList::insert(unsigned index, CodeNode* node)
{
    const auto count = unsigned(size());
    CodeNode* place = nullptr;
    if (index >= count) {
        place = last();
    } else if (index > 0) {
        place = at(int(index) - 1);
    }
    node->m_siblings = 0;
    ChildTree::insertAfter(m_root, place, node);
}

void CodeNodeList::remove(CodeNode* node)
{
    if (indexOf(node) >= 0) {
        ChildTree::remove(m_root, node);
    }
}

CodeNode* CodeNodeList::next(const CodeNode* node)
{
    return ChildTree::next(const_cast<CodeNode*>(node));
}

CodeNode* CodeNodeList::previous(const CodeNode* node)
{
    return ChildTree::previous(const_cast<CodeNode*>(node));
}

}  // namespace Zorv
