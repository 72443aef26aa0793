#pragma once

#include "code/codedoc/codenode.h"
#include "code/codedoc/ordertree_p.h"

namespace Zorv {

/// The chain as a balanced tree. Searching and counting along the chain takes
/// logarithmic time.
struct ChainTraits
{
    static CodeNode*& up(CodeNode* node) { return node->m_chain.up; }
    static CodeNode*& left(CodeNode* node) { return node->m_chain.left; }
    static CodeNode*& right(CodeNode* node) { return node->m_chain.right; }
    static bool pull(CodeNode* node);
};

/// The chain of a node. Every node is in one, even if it is alone.
class NodeChain
{
public:
    /// Inserts `node` directly behind `previous`. If that is null, the node
    /// gets a chain of its own.
    static void link(CodeNode* node, CodeNode* previous);

    /// Removes `node` from its chain. It is then alone.
    static void unlink(CodeNode* node);

    /// The nearest node before (behind) `node` whose type is in `mask`.
    static CodeNode* backward(const CodeNode* node, unsigned mask);
    static CodeNode* forward(const CodeNode* node, unsigned mask);

    static CodeNode* head(const CodeNode* node);
    static CodeNode* tail(const CodeNode* node);

    /// Counts the nodes before `node`, from the head of the chain.
    static NodeCounts before(const CodeNode* node);

    static bool precedes(const CodeNode* a, const CodeNode* b);

    /// Call when the parent of a node has changed.
    static void parentChanged(CodeNode* node);
};

}  // namespace Zorv
