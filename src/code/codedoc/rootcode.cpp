#include "code/codedoc/rootcode.h"

#include "code/codedoc/codedocument.h"
#include "code/codedoc/codedocument_p.h"
#include "code/codedoc/nodechain_p.h"

namespace Zorv {

RootCode::RootCode(short tag) : ParentCode(CodeNode::Root, nullptr), m_tag(tag) {}

RootCode::~RootCode()
{
    while (CodeNode* child = m_children.at(0)) {
        RootCode::removeChild(child);
    }
}

int RootCode::childCount() const
{
    return m_children.size();
}

int RootCode::childIndex(CodeNode* child) const
{
    return m_children.indexOf(child);
}

CodeNode* RootCode::childAt(unsigned index) const
{
    return m_children.at(int(index));
}

void RootCode::insertChild(CodeNode* child, unsigned index)
{
    ParentCode::insertChild(child, index);
    m_children.insert(index, child);
}

void RootCode::removeChild(CodeNode* child)
{
    ParentCode::removeChild(child);
    m_children.remove(child);
}

void RootCode::destroy()
{
    if (CodeDocument* document = this->document()) {
        document->d->dropDeadNodes();
    }
    CodeNode* node = NodeChain::tail(this);
    while (node != this) {
        // Releasing a head moves nodes in the tree, but never in the chain.
        CodeNode* before = node->previous();
        CodeDocumentPrivate::retire(node);
        node = before;
    }
    release();
}

}  // namespace Zorv
