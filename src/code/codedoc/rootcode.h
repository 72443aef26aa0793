#pragma once

#include "code/codedoc/codenodelist.h"
#include "code/codedoc/parentcode.h"

namespace Zorv {

/// The node at the head of a chain; `CodeDocument` is its one concrete form.
class ZORV_EXPORT RootCode : public ParentCode
{
public:
    /// `tag` is a number of the host that the grammar is free to read.
    explicit RootCode(short tag);

    /// Leaves children that are still there without a parent.
    ~RootCode() override;

    /// The number given to the constructor.
    short tag() const { return m_tag; }

    int childCount() const override;

    /// -1 for a stranger. Logarithmic, as all access to the children.
    int childIndex(CodeNode* child) const override;

    /// Null outside of the list.
    CodeNode* childAt(unsigned index) const override;

    /// Takes the child from its former parent; an `index` outside of the list
    /// stands for the end.
    void insertChild(CodeNode* child, unsigned index) override;
    void removeChild(CodeNode* child) override;

    /// Releases every node of the chain, from the last to the first, the root
    /// last. In a document that final `release()` is the one that disposes of
    /// it.
    void destroy();

private:
    CodeNodeList m_children;
    short m_tag;
};

}  // namespace Zorv
