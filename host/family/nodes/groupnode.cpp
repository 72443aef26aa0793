#include "family/nodes/groupnode.h"

#include "family/grammar/grammar.h"
#include "family/grammar/linescanner.h"
#include "family/nodes/boxnode.h"
#include "family/nodes/headcomments.h"
#include "family/nodes/lineedit.h"
#include "family/nodes/valuetext.h"

#include <QTextBlock>

namespace Family {

using Zorv::CodeNode;

GroupNode::GroupNode(CodeNode* previous, const GroupInfo* info, const QString& argument)
    : GroupCode(previous, info->number), m_info(info), m_argument(argument)
{
    BoxNode::raiseRevision();
    if (GroupNode* group = groupAbove()) {
        group->insertChild(this, unsigned(-1));
    } else {
        insertRootChild(this);
    }
}

GroupNode::~GroupNode()
{
    BoxNode::raiseRevision();
}

/// The main group of a sub-group; null if it has none, and for other groups.
GroupNode* GroupNode::groupAbove() const
{
    auto* above = m_info->isSubGroup() ? previous(Group, Animation) : nullptr;
    if (!above || !static_cast<GroupNode*>(above)->info()->isSubGroup()) {
        return static_cast<GroupNode*>(above);
    }
    return static_cast<GroupNode*>(above->parent(Group, 0));
}

bool GroupNode::isInPlace() const
{
    const GroupNode* group = groupAbove();
    return group ? parentCode() == group : parentCode() && !Zorv::isSubGroup(this);
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

int GroupNode::firstLine() const
{
    return firstLineOfHead(this);
}

GroupNode* GroupNode::subGroup(const QString& name) const
{
    for (Zorv::GroupCode* group : subGroups()) {
        if (group->name() == name) {
            return static_cast<GroupNode*>(group);
        }
    }
    return nullptr;
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
