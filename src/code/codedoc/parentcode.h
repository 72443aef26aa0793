#pragma once

#include "code/codedoc/codenode.h"

namespace Zorv {

/// A node that has children.
class ZORV_EXPORT ParentCode : public CodeNode
{
public:
    using CodeNode::CodeNode;

    virtual int childCount() const = 0;

    /// The place of a child, -1 for a stranger.
    virtual int childIndex(CodeNode* child) const = 0;

    virtual CodeNode* childAt(unsigned index) const = 0;

    /// Takes the child from its former parent and makes it one of this node.
    /// Concrete parents put it at `index` of their list, or at the end.
    virtual void insertChild(CodeNode* child, unsigned index);

    /// Leaves the child without a parent.
    virtual void removeChild(CodeNode* child);

    /// Told by `CodeNode::valueChanged()`; does nothing here.
    virtual void childChanged(CodeNode* child);

    /// True if the grammar is to look into groups of that number; false here.
    virtual bool groupEnabled(unsigned group) const;

protected:
    /// Makes a node, mostly this one, a child of the root at the head of its
    /// chain, behind those of the root's children that stand before it.
    static void insertRootChild(CodeNode* child);

private:
    friend class CodeDocumentPrivate;

    uint m_signature = 0;  ///< of a head: what its line said when it was parsed last
};

}  // namespace Zorv
