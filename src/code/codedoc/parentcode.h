#pragma once

#include "code/codedoc/codenode.h"

namespace Zorv {

/// A node with children.
class ZORV_EXPORT ParentCode : public CodeNode
{
public:
    using CodeNode::CodeNode;

    virtual int childCount() const = 0;

    /// The index of a child; -1 if it is not one of them.
    virtual int childIndex(CodeNode* child) const = 0;

    virtual CodeNode* childAt(unsigned index) const = 0;

    /// Removes the child from its previous parent and makes it a child of this
    /// node. Derived classes put it at `index` of their list, or at the end.
    virtual void insertChild(CodeNode* child, unsigned index);

    /// Removes the child, which then has no parent.
    virtual void removeChild(CodeNode* child);

    /// Called by `CodeNode::valueChanged()`. Does nothing by default.
    virtual void childChanged(CodeNode* child);

    /// True if the parser should process groups with that number. False by
    /// default.
    virtual bool groupEnabled(unsigned group) const;

protected:
    /// Makes a node, usually the caller itself, a child of the root of its
    /// chain, behind the root's children that come before it.
    static void insertRootChild(CodeNode* child);

private:
    friend class CodeDocumentPrivate;

    uint m_signature = 0;  ///< hash of a head's line when it was last parsed
};

}  // namespace Zorv
