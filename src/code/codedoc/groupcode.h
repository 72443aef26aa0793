#pragma once

#include "code/codedoc/codenodelist.h"
#include "code/codedoc/namedcode.h"
#include "code/codedoc/parentcode.h"

#include <QList>

namespace Zorv {

class ValueCode;

/// The head of a group of values and sub-groups.
///
/// A new group is only in the chain. The parser decides where it belongs in the
/// tree, in the constructor of its class: `insertRootChild(this)` makes it a
/// child of the root, and `above->insertChild(this, unsigned(-1))` a sub-group
/// of the group `above`. Nothing else is needed for a sub-group. In a document
/// it is placed among its siblings in text order.
///
/// A group adopts the values that follow it in the chain, up to the next group
/// or animation; frames in between lose their parent. When a group is
/// destroyed, its values go to the group above it, in reverse order, or have no
/// parent. Its sub-groups have no parent then. A document parses the dependent
/// lines again, so that everything gets the place that the text implies.
class ZORV_EXPORT GroupCode : public ParentCode, public NamedCode
{
public:
    /// `group` is the parser's number for this kind of group; greater than 0.
    GroupCode(CodeNode* previous, unsigned group);
    ~GroupCode() override;

    unsigned group() const { return m_group; }

    /// The values in order, without the sub-groups.
    QList<ValueCode*> values() const;

    /// The value of the first value node with this name; invalid if there is
    /// none.
    QVariant value(const QString& name) const;

    /// The first value node with this name, or null.
    ValueCode* valueByName(const QString& name) const;

    /// Removes the text of a value from the document. `index` is its index in
    /// `values()`.
    void removeValue(unsigned index);

    /// The sub-groups in order.
    QList<GroupCode*> subGroups() const;

    /// The line before the next group or animation. Sub-groups are part of
    /// their group. At the end of the chain this is the number of lines, which
    /// is one more than the number of the last line.
    int lastLine() const override;

    /// The children are values and sub-groups, in text order.
    int childCount() const override;
    int childIndex(CodeNode* child) const override;

    /// `index` must be valid; null if the list is empty.
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

/// True if the parent of this group is a group.
ZORV_EXPORT bool isSubGroup(const GroupCode* group);

}  // namespace Zorv
