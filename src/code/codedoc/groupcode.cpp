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
    if (m_values.isEmpty()) {
        return;
    }
    CodeNode* above =
        NodeChain::backward(this, CodeNode::Group | CodeNode::Animation | CodeNode::Frame);
    if (!above || above->type() != CodeNode::Group) {
        while (CodeNode* value = m_values.last()) {
            GroupCode::removeChild(value);
        }
        return;
    }
    auto* group = static_cast<GroupCode*>(above);
    while (CodeNode* value = m_values.last()) {
        group->insertChild(value, unsigned(-1));
    }
}

QList<ValueCode*> GroupCode::values() const
{
    QList<ValueCode*> result;
    result.reserve(m_values.size());
    for (CodeNode* node = m_values.at(0); node; node = CodeNodeList::next(node)) {
        result.append(static_cast<ValueCode*>(node));
    }
    return result;
}

QVariant GroupCode::value(const QString& name) const
{
    const ValueCode* found = valueByName(name);
    return found ? found->value() : QVariant();
}

ValueCode* GroupCode::valueByName(const QString& name) const
{
    for (CodeNode* node = m_values.at(0); node; node = CodeNodeList::next(node)) {
        auto* value = static_cast<ValueCode*>(node);
        if (value->name() == name) {
            return value;
        }
    }
    return nullptr;
}

void GroupCode::removeValue(unsigned index)
{
    if (CodeNode* value = m_values.at(int(index))) {
        value->remove(true);
    }
}

int GroupCode::lastLine() const
{
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
    return m_values.size();
}

int GroupCode::childIndex(CodeNode* child) const
{
    return m_values.indexOf(child);
}

CodeNode* GroupCode::childAt(unsigned index) const
{
    return m_values.at(int(index));
}

void GroupCode::insertChild(CodeNode* child, unsigned index)
{
    ParentCode::insertChild(child, index);
    m_values.insert(index, child);
}

void GroupCode::removeChild(CodeNode* child)
{
    ParentCode::removeChild(child);
    m_values.remove(child);
}

bool isSubGroup(const GroupCode* group)
{
    const ParentCode* parent = group->parentCode();
    return parent && parent->type() == CodeNode::Group;
}

}  // namespace Zorv
