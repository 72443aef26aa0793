#include "code/codedoc/codedocument_p.h"

#include "code/codedoc/codedocumenteditor.h"
#include "code/codedoc/groupcode.h"
#include "code/codedoc/nodechain_p.h"

#include <algorithm>

namespace Zorv {

void CodeDocumentPrivate::announce(CodeNode* child)
{
    CodeDocumentEditor* editor = editors.value(editorKey(child));
    if (editor && isParsing) {
        newcomers.append(child);
    } else if (editor) {
        editor->insertChild(child, placeAmongKind(child));
    }
}

void CodeDocumentPrivate::forget(CodeNode* child)
{
    counted = nullptr;
    newcomers.removeAll(child);
    if (CodeDocumentEditor* editor = editors.value(editorKey(child))) {
        editor->removeChild(child);
    }
}

void CodeDocument::trackNode(CodeNode* node) const
{
    node->m_isTracked = true;
    d->tracked.insert(node);
}

bool CodeDocument::isTracked(const CodeNode* node) const
{
    return d->tracked.contains(node);
}

void CodeDocumentPrivate::untrack(CodeNode* node)
{
    node->m_isTracked = false;
    if (const CodeDocument* document = NodeChain::head(node)->document()) {
        document->d->tracked.remove(node);
    }
}

void CodeDocumentPrivate::retire(CodeNode* node)
{
    node->handOver();
    node->unlink();
    node->release();
}

/// Sees to it that the nodes below the parsed lines have the right parent. Where
/// one head takes the place of another of its kind they are not parsed again,
/// and while both were there they can have lost their parent.
void CodeDocumentPrivate::mendBelow(const CodeBlockData* line)
{
    constexpr unsigned heads = CodeNode::Group | CodeNode::Animation;
    CodeNode* above = line->d->node ? line->d->node : nodeAbove(line);
    CodeNode* head = above->type() & heads ? above : NodeChain::backward(above, heads);
    if (!head) {
        return;
    }
    const bool isGroup = head->type() == CodeNode::Group;
    const CodeNode::Type leaf = isGroup ? CodeNode::Value : CodeNode::Frame;
    const CodeNode* below = NodeChain::forward(above, heads | leaf);
    if (below && below->type() == leaf && below->parentCode() != head) {
        head->adopt();
    }
    below = NodeChain::forward(above, heads);
    if (!isGroup || !below || below->type() != CodeNode::Group) {
        return;
    }
    CodeNode* top = isSubGroup(static_cast<GroupCode*>(head)) ? head->m_parent : head;
    const CodeNode* parent = below->m_parent;
    if (!parent || (parent->type() == CodeNode::Group && parent != top)) {
        top->adopt();
    }
}

void CodeDocumentPrivate::lineGone(CodeBlockData* line)
{
    CodeBlockDataPrivate& d = *line->d;
    lines.remove(line);
    d.owner = nullptr;
    if (d.node) {
        d.node->m_block = QTextBlock();
        dead.append(d.node);
    }
}

void CodeDocumentPrivate::dropDeadNodes()
{
    unlinkDeadNodes();
    releaseUnlinked();
}

/// Leaves go first, so that a dying head only hands on what lives.
void CodeDocumentPrivate::unlinkDeadNodes()
{
    QVector<CodeNode*> nodes;
    nodes.swap(dead);
    const auto isHead = [](const CodeNode* node) {
        return node->type() == CodeNode::Group || node->type() == CodeNode::Animation;
    };
    const auto heads = std::stable_partition(nodes.begin(), nodes.end(),
                                             [&](CodeNode* node) { return !isHead(node); });
    std::for_each(nodes.begin(), heads, [](CodeNode* node) { node->unlink(); });
    std::sort(heads, nodes.end(), [](CodeNode* a, CodeNode* b) { return a->precedes(b); });
    std::for_each(heads, nodes.end(), [](CodeNode* node) {
        node->handOver();
        node->unlink();
    });
    unlinked += nodes;
}

void CodeDocumentPrivate::releaseUnlinked()
{
    QVector<CodeNode*> nodes;
    nodes.swap(unlinked);
    for (CodeNode* node : nodes) {
        node->release();
    }
}

unsigned CodeDocumentPrivate::editorKey(CodeNode::Type type, unsigned group)
{
    return (group << 16) | type;
}

unsigned CodeDocumentPrivate::editorKey(const CodeNode* node)
{
    const bool isGroup = node->type() == CodeNode::Group;
    return editorKey(node->type(), isGroup ? static_cast<const GroupCode*>(node)->group() : 0);
}

unsigned CodeDocumentPrivate::placeAmongKind(const CodeNode* child)
{
    if (child->type() == CodeNode::Animation) {
        return NodeChain::before(child).animations;
    }
    // A file that is loaded asks for one node after the other: the place of
    // the last one asked for is remembered.
    const unsigned key = editorKey(child);
    unsigned count = 0;
    for (const CodeNode* node = NodeChain::backward(child, child->type()); node;
         node = NodeChain::backward(node, child->type())) {
        if (node == counted && key == countedKey) {
            count += countedPlace + 1;
            break;
        }
        count += editorKey(node) == key ? 1 : 0;
    }
    counted = child;
    countedKey = key;
    countedPlace = count;
    return count;
}

}  // namespace Zorv
