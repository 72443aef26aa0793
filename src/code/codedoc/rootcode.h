#pragma once

#include "code/codedoc/codenodelist.h"
#include "code/codedoc/parentcode.h"

namespace Zorv {

/// The node at the head of a chain. `CodeDocument` is the only concrete class.
class ZORV_EXPORT RootCode : public ParentCode
{
public:
    /// `tag` is a number of the host that the parser may read.
    explicit RootCode(short tag);

    /// The remaining children have no parent afterwards.
    ~RootCode() override;

    /// The number passed to the constructor.
    short tag() const { return m_tag; }

    int childCount() const override;

    /// -1 if it is not a child. Logarithmic, like every access to the children.
    int childIndex(CodeNode* child) const override;

    /// Null if out of range.
    CodeNode* childAt(unsigned index) const override;

    /// Removes the child from its previous parent. An `index` out of range
    /// means the end.
    void insertChild(CodeNode* child, unsigned index) override;
    void removeChild(CodeNode* child) override;

    /// Releases every node of the chain, from last to first, with the root at
    /// the end. In a document that last `release()` deletes the object.
    void destroy();

private:
    CodeNodeList m_children;
    short m_tag;
};

}  // namespace Zorv
