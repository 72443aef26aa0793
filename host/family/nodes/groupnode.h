#pragma once

#include <zorv/code/codedoc/groupcode.h>

namespace Family {

struct GroupInfo;

/// The head of a group or sub-group. A sub-group without a group above it is a
/// child of the root.
class GroupNode final : public Zorv::GroupCode
{
public:
    GroupNode(Zorv::CodeNode* previous, const GroupInfo* info, const QString& argument);
    ~GroupNode() override;

    /// The row of the table.
    const GroupInfo* info() const { return m_info; }

    /// The text behind the group's name, empty for a group that takes none.
    QString argument() const { return m_argument; }

    /// The argument of a group that takes one, else the name in the brackets,
    /// without the dot. An unknown group's is read from its line.
    QString name() const override;

    /// As in the brackets: "move fireball", ".walk".
    QString displayName() const override;

    /// Edits the head line: the argument of a group that takes one, else the
    /// name. Nothing for a name that cannot be written.
    void setName(const QString& name) override;

    /// With the comments directly above while they travel, see `CommentTravel`.
    int firstLine() const override;

    /// The first sub-group of that name, null without one; sub-groups of a sub-group do not exist.
    GroupNode* subGroup(const QString& name) const;

    /// For the parser: the same head with another argument. Tells the parent.
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
