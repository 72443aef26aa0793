#include "app/code/nodemodel.h"

#include "app/look/icon.h"
#include "family/nodepath.h"
#include "family/nodes/boxnode.h"
#include "family/nodes/framenode.h"

#include <QHash>

#include <algorithm>

namespace App {

using Zorv::CodeNode;

namespace {

const Family::BoxNode* boxBefore(const CodeNode* node)
{
    return dynamic_cast<const Family::BoxNode*>(node->previous());
}

QVector<const CodeNode*> boxesOf(const CodeNode* frame)
{
    QVector<const CodeNode*> boxes;
    for (const CodeNode* box = boxBefore(frame); box; box = boxBefore(box)) {
        boxes.append(box);
    }
    std::reverse(boxes.begin(), boxes.end());
    return boxes;
}

}  // namespace

QString NodeModel::nodeLabel(const CodeNode* node) const
{
    return Family::nodeLabel(node);
}

QIcon NodeModel::nodeIcon(const CodeNode* node) const
{
    static const QHash<int, QIcon> icons{
        {CodeNode::Group, icon(QStringLiteral(":/zorvl_icons/icons/code.png"))},
        {CodeNode::Animation, icon(QStringLiteral(":/zorvl_icons/icons/anim.png"))},
        {CodeNode::Frame, icon(QStringLiteral(":/zorvl_icons/icons/sprite.png"))},
    };
    return icons.value(node->type());
}

int NodeModel::shownCount(const CodeNode* node) const
{
    return node->type() == CodeNode::Frame ? boxesOf(node).size() : CodeTreeModel::shownCount(node);
}

QVector<const CodeNode*> NodeModel::shownChildren(const CodeNode* node) const
{
    return node->type() == CodeNode::Frame ? boxesOf(node) : CodeTreeModel::shownChildren(node);
}

const CodeNode* NodeModel::shownParent(const CodeNode* node) const
{
    const auto* box = dynamic_cast<const Family::BoxNode*>(node);
    return box ? box->frame() : CodeTreeModel::shownParent(node);
}

int NodeModel::shownPlace(const CodeNode* node) const
{
    const auto* box = dynamic_cast<const Family::BoxNode*>(node);
    if (!box) {
        return CodeTreeModel::shownPlace(node);
    }
    return box->frame() ? boxesOf(box->frame()).indexOf(node) : -1;
}

}  // namespace App
