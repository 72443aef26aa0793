#include "code/codedoc/nodechain_p.h"

#include "code/codedoc/parentcode.h"

// Each node of the tree stores two summaries of its subtree: a mask of the types that occur, and
// the number of nodes of each kind. A search skips every subtree whose mask does not contain the
// type. `before()` counts by adding up the subtrees to the left on the way to the root. Direct
// neighbours are linked separately, so that single steps do not need the tree.

namespace Zorv {

using ChainTree = OrderTree<CodeNode, ChainTraits>;

namespace {

void add(NodeCounts& sum, const NodeCounts& part)
{
    sum.values += part.values;
    sum.frames += part.frames;
    sum.animations += part.animations;
    sum.rootChildren += part.rootChildren;
}

bool isSame(const NodeCounts& a, const NodeCounts& b)
{
    return a.values == b.values && a.frames == b.frames && a.animations == b.animations &&
           a.rootChildren == b.rootChildren;
}

NodeCounts ownCounts(const CodeNode* node)
{
    const CodeNode* parent = node->parentCode();
    NodeCounts counts;
    counts.values = node->type() == CodeNode::Value ? 1 : 0;
    counts.frames = node->type() == CodeNode::Frame ? 1 : 0;
    counts.animations = node->type() == CodeNode::Animation ? 1 : 0;
    counts.rootChildren = parent && parent->type() == CodeNode::Root ? 1 : 0;
    return counts;
}

}  // namespace

bool ChainTraits::pull(CodeNode* node)
{
    unsigned short mask = node->m_type;
    NodeCounts counts = ownCounts(node);
    for (const CodeNode* side : {node->m_chain.left, node->m_chain.right}) {
        if (side) {
            mask |= side->m_chainMask;
            add(counts, side->m_counts);
        }
    }
    const bool changed = mask != node->m_chainMask || !isSame(counts, node->m_counts);
    node->m_chainMask = mask;
    node->m_counts = counts;
    return changed;
}

void NodeChain::link(CodeNode* node, CodeNode* previous)
{
    node->m_previous = previous;
    node->m_next = previous ? previous->m_next : nullptr;
    if (node->m_next) {
        node->m_next->m_previous = node;
    }
    if (previous) {
        previous->m_next = node;
    }
    CodeNode* root = previous;
    ChainTree::insertAfter(root, previous, node);
}

void NodeChain::unlink(CodeNode* node)
{
    if (node->m_previous) {
        node->m_previous->m_next = node->m_next;
    }
    if (node->m_next) {
        node->m_next->m_previous = node->m_previous;
    }
    node->m_previous = node->m_next = nullptr;
    CodeNode* root = node;
    ChainTree::remove(root, node);
}

CodeNode* NodeChain::backward(const CodeNode* node, unsigned mask)
{
    return ChainTree::findBackward(
        const_cast<CodeNode*>(node), [mask](CodeNode* n) { return (n->m_type & mask) != 0; },
        [mask](CodeNode* n) { return (n->m_chainMask & mask) != 0; });
}

CodeNode* NodeChain::forward(const CodeNode* node, unsigned mask)
{
    return ChainTree::findForward(
        const_cast<CodeNode*>(node), [mask](CodeNode* n) { return (n->m_type & mask) != 0; },
        [mask](CodeNode* n) { return (n->m_chainMask & mask) != 0; });
}

CodeNode* NodeChain::head(const CodeNode* node)
{
    return ChainTree::first(ChainTree::rootOf(const_cast<CodeNode*>(node)));
}

CodeNode* NodeChain::tail(const CodeNode* node)
{
    return ChainTree::last(ChainTree::rootOf(const_cast<CodeNode*>(node)));
}

NodeCounts NodeChain::before(const CodeNode* node)
{
    NodeCounts counts = node->m_chain.left ? node->m_chain.left->m_counts : NodeCounts();
    for (const CodeNode* up = node->m_chain.up; up; node = up, up = up->m_chain.up) {
        if (up->m_chain.right == node) {
            add(counts, ownCounts(up));
            if (up->m_chain.left) {
                add(counts, up->m_chain.left->m_counts);
            }
        }
    }
    return counts;
}

bool NodeChain::precedes(const CodeNode* a, const CodeNode* b)
{
    return ChainTree::precedes(const_cast<CodeNode*>(a), const_cast<CodeNode*>(b));
}

void NodeChain::parentChanged(CodeNode* node)
{
    ChainTree::update(node);
}

}  // namespace Zorv
