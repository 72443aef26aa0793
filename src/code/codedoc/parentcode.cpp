#include "code/codedoc/parentcode.h"

#include "code/codedoc/nodechain_p.h"

namespace Zorv {

void ParentCode::insertChild(CodeNode* child, unsigned)
{
    if (child->m_parent) {
        child->m_parent->removeChild(child);
    }
    child->m_parent = this;
    NodeChain::parentChanged(child);
}

void ParentCode::removeChild(CodeNode* child)
{
    child->m_parent = nullptr;
    NodeChain::parentChanged(child);
}

void ParentCode::childChanged(CodeNode*) {}

bool ParentCode::groupEnabled(unsigned) const
{
    return false;
}

void ParentCode::insertRootChild(CodeNode* child)
{
    CodeNode* head = NodeChain::head(child);
    if (head != child && head->type() == CodeNode::Root) {
        static_cast<ParentCode*>(head)->insertChild(child, NodeChain::before(child).rootChildren);
    }
}

}  // namespace Zorv
