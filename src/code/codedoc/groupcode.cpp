#include "code/codedoc/groupcode.h"

#include "code/codedoc/codedocument.h"
#include "code/codedoc/nodechain_p.h"
#include "code/codedoc/valuecode.h"

namespace Zorv {

GroupCode::GroupCode(CodeNode* previous, unsigned group)
    : ParentCode(CodeNode::Group, previous), m_group(group)
{
    GroupCode::adopt();
}

void GroupCode::adopt()
{
    for (CodeNode* node = next(); node; node = node->next()) {
        if (node->type() == CodeNode::Group || node->type() == CodeNode::Animation) {
            break;
        }
        if (node->type() == CodeNode::Value) {
            GroupCode::insertChild(node, unsigned(-1));
        } else if (node->type() == CodeNode::Frame && node->parentCode()) {
            node->parentCode()->removeChild(node);
        }
    }
}

GroupCode::~GroupCode()
{
    GroupCode::handOver();
}

void GroupCode::handOver()
{
    if (m_children.isEmpty()) {
        return;
    }
    CodeNode* above =
        NodeChain::backward(this, CodeNode::Group | CodeNode::Animation | CodeNode::Frame);
    auto* heir =
        above && above->type() == CodeNode::Group ? static_cast<GroupCode*>(above) : nullptr;
    while (CodeNode* child = m_children.last()) {
        if (heir && child->type() == CodeNode::Value) {
            heir->insertChild(child, unsigned(-1));
        } else {
            GroupCode::removeChild(child);
        }
    }
}

QList<ValueCode*> GroupCode::values() const
{
    return m_children.ofType<ValueCode>(CodeNode::Value);
}

QList<GroupCode*> GroupCode::subGroups() const
{
    return m_children.ofType<GroupCode>(CodeNode::Group);
}

QVariant GroupCode::value(const QString& name) const
{
    const ValueCode* found = valueByName(name);
    return found ? found->value() : QVariant();
}

ValueCode* GroupCode::valueByName(const QString& name) const
{
    for (CodeNode* node = m_children.at(0); node; node = CodeNodeList::next(node)) {
        if (node->type() != CodeNode::Value) {
            continue;
        }
        auto* value = static_cast<ValueCode*>(node);
        if (value->name() == name) {
            return value;
        }
    }
    return nullptr;
}

void GroupCode::removeValue(unsigned index)
{
    if (ValueCode* value = values().value(int(index))) {
        value->remove(true);
    }
}

int GroupCode::lastLine() const
{
    // A group ends at the next animation or group, but not at its own sub-groups.
    const CodeNode* node = this;
    while ((node = NodeChain::forward(node, CodeNode::Group | CodeNode::Animation))) {
        if (node->type() == CodeNode::Animation || isSubGroup(this) ||
            !isSubGroup(static_cast<const GroupCode*>(node))) {
            return node->firstLine() - 1;
        }
    }
    const CodeDocument* document = this->document();
    return document ? document->blockCount() : -1;
}

int GroupCode::childCount() const
{
    return m_children.size();
}

int GroupCode::childIndex(CodeNode* child) const
{
    return m_children.indexOf(child);
}

CodeNode* GroupCode::childAt(unsigned index) const
{
    return m_children.at(int(index));
}

void GroupCode::insertChild(CodeNode* child, unsigned index)
{
    ParentCode::insertChild(child, index);
    m_children.insert(index, child);
}

void GroupCode::removeChild(CodeNode* child)
{
    ParentCode::removeChild(child);
    m_children.remove(child);
}

bool isSubGroup(const GroupCode* group)
{
    const ParentCode* parent = group->parentCode();
    return parent && parent->type() == CodeNode::Group;
}

}  // namespace Zorv
