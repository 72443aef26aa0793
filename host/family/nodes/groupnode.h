#pragma once

#include "code/codedoc/groupcode.h"

namespace Family {

struct GroupInfo;

/// The head of a group or sub-group. Its children are its values, then its
/// sub-groups, each in the order of the text.
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

    /// The sub-groups alone; sub-groups of a sub-group do not exist.
    QList<GroupNode*> subGroups() const;
    GroupNode* subGroup(const QString& name) const;
    bool isSubGroup() const;

    /// For the parser: the same head with another argument. Tells the parent.
    void update(const QString& argument);

    /// For the parser: true if a new node in this place would have the same parent.
    bool isInPlace() const;

    /// The group that a sub-group behind `node` belongs to, null without one.
    static GroupNode* groupBefore(const Zorv::CodeNode* node);

    /// Gives the sub-groups that follow a head of whatever kind to a group, or
    /// to the root.
    static void placeSubGroups(Zorv::CodeNode* head, GroupNode* group);

    int childCount() const override;
    int childIndex(Zorv::CodeNode* child) const override;
    Zorv::CodeNode* childAt(unsigned index) const override;
    void insertChild(Zorv::CodeNode* child, unsigned index) override;
    void removeChild(Zorv::CodeNode* child) override;
    void childChanged(Zorv::CodeNode* child) override;
    void release() override;

protected:
    void handOver() override;
    void adopt() override;

private:
    static GroupNode* groupBefore(const Zorv::CodeNode* node, GroupNode** brother);
    void attach();
    void adoptSubGroups();
    void giveAway();

    const GroupInfo* m_info;
    QString m_argument;
    Zorv::CodeNodeList m_subGroups;
};

}  // namespace Family
