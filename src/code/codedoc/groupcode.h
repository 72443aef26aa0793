#pragma once

#include "code/codedoc/codenodelist.h"
#include "code/codedoc/namedcode.h"
#include "code/codedoc/parentcode.h"

#include <QList>

namespace Zorv {

class ValueCode;

/// The head of a group of values, and of sub-groups.
///
/// A new group is in the chain only: where it belongs in the tree is the
/// grammar's to say, in the constructor of its class. `insertRootChild(this)`
/// makes it a child of the root; `above->insertChild(this, unsigned(-1))` a
/// sub-group of the group `above`, which is all that a sub-group takes. Inside of
/// a document it comes to stand among its siblings in the order of the text.
///
/// A group adopts the values that follow it in the chain, up to the next group
/// or animation; a frame on the way loses its parent. When a group dies, its
/// values go to the group above it, which turns their order around, or are left
/// without a parent, and its sub-groups are left without one. A document then
/// parses the lines that depend on it again, so that all stand where the text
/// says.
class ZORV_EXPORT GroupCode : public ParentCode, public NamedCode
{
public:
    /// `group` is the grammar's number for this kind of group, above 0.
    GroupCode(CodeNode* previous, unsigned group);
    ~GroupCode() override;

    unsigned group() const { return m_group; }

    /// The values in their order, without the sub-groups.
    QList<ValueCode*> values() const;

    /// What the first value of that name holds, invalid if there is none.
    QVariant value(const QString& name) const;

    /// The first value of that name, or null.
    ValueCode* valueByName(const QString& name) const;

    /// Takes the text of a value out of the document; `index` is its place among
    /// `values()`.
    void removeValue(unsigned index);

    /// The sub-groups in their order.
    QList<GroupCode*> subGroups() const;

    /// The line before the next group, or animation. The sub-groups of a group
    /// belong to it. At the end of the chain it is the number of lines, one
    /// more than the last line has.
    int lastLine() const override;

    /// The children are values and sub-groups, in the order of the text.
    int childCount() const override;
    int childIndex(CodeNode* child) const override;

    /// `index` must be inside the list; null if the list is empty.
    CodeNode* childAt(unsigned index) const override;
    void insertChild(CodeNode* child, unsigned index) override;
    void removeChild(CodeNode* child) override;

protected:
    void handOver() override;

private:
    friend class ValueCode;

    void adopt();

    CodeNodeList m_children;
    unsigned m_group;
};

/// True if the parent of the group is a group.
ZORV_EXPORT bool isSubGroup(const GroupCode* group);

}  // namespace Zorv
