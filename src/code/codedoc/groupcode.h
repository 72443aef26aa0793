#pragma once

#include "code/codedoc/codenodelist.h"
#include "code/codedoc/namedcode.h"
#include "code/codedoc/parentcode.h"

#include <QList>

namespace Zorv {

class ValueCode;

/// The head of a group of values.
///
/// A group adopts the values that follow it in the chain, up to the next group
/// or animation; a frame on the way loses its parent. When a group dies, its
/// values go to the group above it, which turns their order around, or are left
/// without a parent. A sub-group is a group whose parent is a group: the grammar
/// that makes it sets that parent.
class ZORV_EXPORT GroupCode : public ParentCode, public NamedCode
{
public:
    /// `group` is the grammar's number for this kind of group, above 0.
    GroupCode(CodeNode* previous, unsigned group);
    ~GroupCode() override;

    unsigned group() const { return m_group; }

    /// The values in their order.
    QList<ValueCode*> values() const;

    /// What the first value of that name holds, invalid if there is none.
    QVariant value(const QString& name) const;

    /// The first value of that name, or null.
    ValueCode* valueByName(const QString& name) const;

    /// Takes the text of a value out of the document.
    void removeValue(unsigned index);

    /// The line before the next group, or animation. The sub-groups of a group
    /// belong to it. At the end of the chain it is the number of lines, one
    /// more than the last line has.
    int lastLine() const override;

    int childCount() const override;
    int childIndex(CodeNode* child) const override;

    /// `index` must be inside the list; null if the list is empty.
    CodeNode* childAt(unsigned index) const override;
    void insertChild(CodeNode* child, unsigned index) override;
    void removeChild(CodeNode* child) override;

protected:
    void handOver() override;
    void adopt() override;

private:
    friend class ValueCode;

    CodeNodeList m_values;
    unsigned m_group;
};

/// True if the parent of the group is a group.
ZORV_EXPORT bool isSubGroup(const GroupCode* group);

}  // namespace Zorv
