#pragma once

#include <zorv/code/codedoc/groupcode.h>

namespace Family {

struct GroupInfo;

/// The head of a group or sub-group. A sub-group without a group above is a child of the root.
class GroupNode final : public Zorv::GroupCode
{
public:
    GroupNode(Zorv::CodeNode* previous, const GroupInfo* info, const QString& argument);
    ~GroupNode() override;

    /// The row of the table.
    const GroupInfo* info() const { return m_info; }

    /// The text after the group's name; empty for a group without argument.
    QString argument() const { return m_argument; }

    /// The argument of a group that has one; otherwise the name in the brackets, without the dot.
    /// For an unknown group it is read from the line.
    QString name() const override;

    /// As written in the brackets: "move fireball", ".walk".
    QString displayName() const override;

    /// Edits the head line: the argument of a group that has one, otherwise the name. Does nothing
    /// for an invalid name.
    void setName(const QString& name) override;

    /// Includes the comments directly above while they travel, see `CommentTravel`.
    int firstLine() const override;

    /// The first sub-group with that name; null if none. Sub-groups do not nest.
    GroupNode* subGroup(const QString& name) const;

    /// For the parser: same head, new argument. Notifies the parent.
    void update(const QString& argument);

    void childChanged(Zorv::CodeNode* child) override;
    void release() override;

protected:
    bool isInPlace() const override;

private:
    GroupNode* groupAbove() const;

    const GroupInfo* m_info;
    QString m_argument;
};

}  // namespace Family
