#include "nodes/groupnode.h"

#include "grammar/grammar.h"
#include "grammar/linescanner.h"
#include "nodes/boxnode.h"
#include "nodes/lineedit.h"
#include "nodes/valuetext.h"

#include <QTextBlock>

namespace Family {

using Zorv::CodeNode;
using Zorv::CodeNodeList;

GroupNode::GroupNode(CodeNode* previous, const GroupInfo* info, const QString& argument)
    : GroupCode(previous, info->number), m_info(info), m_argument(argument)
{
    BoxNode::raiseRevision();
    attach();
    adoptSubGroups();
}

GroupNode::~GroupNode()
{
    BoxNode::raiseRevision();
    giveAway();
}

void GroupNode::attach()
{
    GroupNode* brother = nullptr;
    GroupNode* group = m_info->isSubGroup() ? groupBefore(this, &brother) : nullptr;
    if (group) {
        group->insertChild(this, brother ? unsigned(group->m_subGroups.indexOf(brother) + 1) : 0);
    } else {
        insertRootChild(this);
    }
}

GroupNode* GroupNode::groupBefore(const CodeNode* node, GroupNode** brother)
{
    *brother = nullptr;
    auto* above = static_cast<GroupNode*>(node->previous(Group, Animation));
    if (!above || !above->info()->isSubGroup()) {
        return above;
    }
    if (!above->isSubGroup()) {
        return nullptr;
    }
    *brother = above;
    return static_cast<GroupNode*>(above->parentCode());
}

GroupNode* GroupNode::groupBefore(const CodeNode* node)
{
    GroupNode* brother = nullptr;
    return groupBefore(node, &brother);
}

void GroupNode::placeSubGroups(CodeNode* head, GroupNode* group)
{
    CodeNode* node = head->next(Group, Animation);
    while (node && static_cast<GroupNode*>(node)->info()->isSubGroup()) {
        if (group) {
            group->insertChild(node, unsigned(-1));
        } else if (static_cast<GroupNode*>(node)->isSubGroup()) {
            insertRootChild(node);
        }
        node = node->next(Group, Animation);
    }
}

/// A head written above sub-groups takes them over: their lines need not be
/// parsed again if the group above was of the same kind.
void GroupNode::adoptSubGroups()
{
    if (!m_info->isSubGroup()) {
        placeSubGroups(this, this);
    }
}

void GroupNode::adopt()
{
    GroupCode::adopt();
    adoptSubGroups();
}

void GroupNode::giveAway()
{
    if (m_subGroups.isEmpty()) {
        return;
    }
    GroupNode* group = groupBefore(this);
    while (CodeNode* sub = m_subGroups.at(0)) {
        if (group) {
            group->insertChild(sub, unsigned(-1));
        } else {
            insertRootChild(sub);
        }
    }
}

void GroupNode::handOver()
{
    giveAway();
    GroupCode::handOver();
}

bool GroupNode::isInPlace() const
{
    if (!m_info->isSubGroup()) {
        return true;
    }
    const GroupNode* group = groupBefore(this);
    return group ? parentCode() == group : !isSubGroup() && parentCode();
}

void GroupNode::update(const QString& argument)
{
    if (argument != m_argument) {
        m_argument = argument;
        valueChanged(argument);
    }
}

QString GroupNode::name() const
{
    if (m_info->takesArgument()) {
        return m_argument;
    }
    if (!m_info->isUnknown()) {
        return m_info->name;
    }
    const QString line = block().text();
    LineScanner scanner(line);
    scanner.skipBlanks();
    scanner.accept('[');
    scanner.skipBlanks();
    scanner.accept('.');
    return scanner.word().toString();
}

QString GroupNode::displayName() const
{
    const QString dot = m_info->isSubGroup() ? QStringLiteral(".") : QString();
    if (!m_info->takesArgument()) {
        return dot + name();
    }
    return dot + m_info->name + QLatin1Char(' ') + m_argument;
}

void GroupNode::setName(const QString& name)
{
    const NodeLine line(this);
    const LinePart* old =
        line.details.part(m_info->takesArgument() ? LinePart::Argument : LinePart::Name);
    const bool word = isWord(name);
    if (!old || name == this->name() || !(word || (m_info->takesArgument() && canQuote(name)))) {
        return;
    }
    QString text = word ? name : quotedText(name);
    if (old->start == old->end && m_info->takesArgument()) {
        text.prepend(QLatin1Char(' '));
    }
    replaceColumns(this, {{old->start, old->end, text}});
}

QList<GroupNode*> GroupNode::subGroups() const
{
    QList<GroupNode*> result;
    for (CodeNode* node = m_subGroups.at(0); node; node = CodeNodeList::next(node)) {
        result.append(static_cast<GroupNode*>(node));
    }
    return result;
}

GroupNode* GroupNode::subGroup(const QString& name) const
{
    for (CodeNode* node = m_subGroups.at(0); node; node = CodeNodeList::next(node)) {
        auto* group = static_cast<GroupNode*>(node);
        if (group->name() == name) {
            return group;
        }
    }
    return nullptr;
}

bool GroupNode::isSubGroup() const
{
    return Zorv::isSubGroup(this);
}

int GroupNode::childCount() const
{
    return GroupCode::childCount() + m_subGroups.size();
}

int GroupNode::childIndex(CodeNode* child) const
{
    if (!child || child->type() != Group) {
        return GroupCode::childIndex(child);
    }
    const int index = m_subGroups.indexOf(child);
    return index < 0 ? index : index + GroupCode::childCount();
}

CodeNode* GroupNode::childAt(unsigned index) const
{
    const auto values = unsigned(GroupCode::childCount());
    return index < values ? GroupCode::childAt(index) : m_subGroups.at(int(index - values));
}

void GroupNode::insertChild(CodeNode* child, unsigned index)
{
    if (child->type() != Group) {
        GroupCode::insertChild(child, index);
        return;
    }
    ParentCode::insertChild(child, index);
    m_subGroups.insert(index, child);
}

void GroupNode::removeChild(CodeNode* child)
{
    if (child->type() != Group) {
        GroupCode::removeChild(child);
        return;
    }
    ParentCode::removeChild(child);
    m_subGroups.remove(child);
}

void GroupNode::childChanged(CodeNode*)
{
    valueChanged(QVariant());
}

void GroupNode::release()
{
    delete this;
}

}  // namespace Family
