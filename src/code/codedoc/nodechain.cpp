#include "code/codedoc/nodechain_p.h"

#include "code/codedoc/parentcode.h"

namespace Zorv {

using ChainTree = OrderTree<CodeNode, ChainTraits>;

bool ChainTraits::pull(CodeNode* node)
{
    unsigned short mask = node->m_type;
    unsigned animations = node->m_type == CodeNode::Animation ? 1 : 0;
    const auto* parent = static_cast<const CodeNode*>(node->m_parent);
    unsigned rootChildren = parent && parent->m_type == CodeNode::Root ? 1 : 0;
    for (const CodeNode* side : {node->m_chain.left, node->m_chain.right}) {
        if (side) {
            mask |= side->m_chainMask;
            animations += side->m_animations;
            rootChildren += side->m_rootChildren;
        }
    }
    const bool changed = mask != node->m_chainMask || animations != node->m_animations
                         || rootChildren != node->m_rootChildren;
    node->m_chainMask = mask;
    node->m_animations = animations;
    node->m_rootChildren = rootChildren;
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

unsigned NodeChain::animationsBefore(const CodeNode* node)
{
    unsigned count = node->m_chain.left ? node->m_chain.left->m_animations : 0;
    for (const CodeNode* up = node->m_chain.up; up; node = up, up = up->m_chain.up) {
        if (up->m_chain.right == node) {
            count += up->m_animations - node->m_animations;
        }
    }
    return count;
}

unsigned NodeChain::rootChildrenBefore(const CodeNode* node)
{
    unsigned count = node->m_chain.left ? node->m_chain.left->m_rootChildren : 0;
    for (const CodeNode* up = node->m_chain.up; up; node = up, up = up->m_chain.up) {
        if (up->m_chain.right == node) {
            count += up->m_rootChildren - node->m_rootChildren;
        }
    }
    return count;
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
