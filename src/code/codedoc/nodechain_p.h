#pragma once

#include "code/codedoc/codenode.h"
#include "code/codedoc/ordertree_p.h"

namespace Zorv {

/// The chain as a balanced tree: what a walk along the chain would find or
/// count, in logarithmic time.
struct ChainTraits
{
    static CodeNode*& up(CodeNode* node) { return node->m_chain.up; }
    static CodeNode*& left(CodeNode* node) { return node->m_chain.left; }
    static CodeNode*& right(CodeNode* node) { return node->m_chain.right; }
    static bool pull(CodeNode* node);
};

/// The chain that a node stands in. Every node is in one, if need be alone.
class NodeChain
{
public:
    /// Links `node` right behind `previous`; null leaves it alone in a chain.
    static void link(CodeNode* node, CodeNode* previous);

    /// Takes `node` out; it stands alone afterwards.
    static void unlink(CodeNode* node);

    /// The nearest node in front of (behind) `node` whose type is in `mask`.
    static CodeNode* backward(const CodeNode* node, unsigned mask);
    static CodeNode* forward(const CodeNode* node, unsigned mask);

    static CodeNode* head(const CodeNode* node);
    static CodeNode* tail(const CodeNode* node);

    /// What stands in front of `node`, from the head of the chain on.
    static NodeCounts before(const CodeNode* node);

    static bool precedes(const CodeNode* a, const CodeNode* b);

    /// The node has another parent than before.
    static void parentChanged(CodeNode* node);
};

}  // namespace Zorv
