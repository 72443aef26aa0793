#include "app/code/nodechildren.h"

#include "family/nodes/boxnode.h"
#include "family/nodes/framenode.h"

#include <zorv/code/codedoc/parentcode.h>

#include <algorithm>

namespace App {

using Zorv::CodeNode;
using Zorv::ParentCode;

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

const ParentCode* asParent(const CodeNode* node)
{
    return node->type() == CodeNode::Value ? nullptr : static_cast<const ParentCode*>(node);
}

}  // namespace

int childCount(const CodeNode* node)
{
    if (node->type() == CodeNode::Frame) {
        int count = 0;
        for (const CodeNode* box = boxBefore(node); box; box = boxBefore(box)) {
            ++count;
        }
        return count;
    }
    const ParentCode* parent = asParent(node);
    return parent ? parent->childCount() : 0;
}

QVector<const CodeNode*> childrenOf(const CodeNode* node)
{
    if (node->type() == CodeNode::Frame) {
        return boxesOf(node);
    }
    const ParentCode* parent = asParent(node);
    if (!parent) {
        return {};
    }
    QVector<const CodeNode*> children(parent->childCount());
    for (int i = 0; i < children.size(); ++i) {
        children[i] = parent->childAt(unsigned(i));
    }
    return children;
}

const CodeNode* shownParent(const CodeNode* node)
{
    const auto* box = dynamic_cast<const Family::BoxNode*>(node);
    return box ? box->frame() : static_cast<const CodeNode*>(node->parentCode());
}

int shownPlace(const CodeNode* node)
{
    const CodeNode* parent = shownParent(node);
    if (!parent) {
        return -1;
    }
    return parent->type() == CodeNode::Frame
               ? boxesOf(parent).indexOf(node)
               : asParent(parent)->childIndex(const_cast<CodeNode*>(node));
}

}  // namespace App
