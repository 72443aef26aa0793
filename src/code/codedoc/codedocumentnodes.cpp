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
    if (newcomers.removeAll(child) > 0) {
        return;
    }
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

namespace {

/// The parent that a value or frame chooses by itself.
ParentCode* parentByHead(const CodeNode* node, CodeNode* head)
{
    const bool isValue = node->type() == CodeNode::Value;
    return head && head->type() == (isValue ? CodeNode::Group : CodeNode::Animation)
               ? static_cast<ParentCode*>(head)
               : nullptr;
}

}  // namespace

/// True if it is known where a new node would go: either it is a leaf that is where a head of the
/// same type put it, or it is a head that decides itself.
bool CodeDocumentPrivate::knowsPlace(const CodeNode* node)
{
    const CodeNode* head = lineHead(node->m_previous);
    return node->m_placedBy == (head ? head->type() : 0) || node->isInPlace();
}

/// A node that stays under another head moves to where a new one would go.
void CodeDocumentPrivate::place(CodeNode* node, bool isKept)
{
    if (node->m_type & (CodeNode::Value | CodeNode::Frame)) {
        CodeNode* head = lineHead(node->m_previous);
        ParentCode* parent = parentByHead(node, head);
        if (isKept && parent && node->m_parent != parent) {
            parent->insertChild(node, unsigned(-1));
        } else if (isKept && !parent && node->m_parent) {
            node->m_parent->removeChild(node);
        }
        const int headType = head ? head->type() : 0;
        node->m_placedBy = node->m_parent == parent ? uchar(headType) : CodeNode::Elsewhere;
    }
    placeAmongSiblings(node);
}

/// A parser appends new children, which is correct in a complete parse. Here later siblings may
/// already exist, so the node moves in front of them.
void CodeDocumentPrivate::placeAmongSiblings(CodeNode* node)
{
    const CodeNode* before = CodeNodeList::previous(node);
    const CodeNode* after = CodeNodeList::next(node);
    if ((!before || before->precedes(node)) && (!after || node->precedes(after))) {
        return;
    }
    ParentCode* parent = node->m_parent;
    parent->removeChild(node);
    int first = 0;
    int count = parent->childCount();
    while (count > 0) {
        const int half = count / 2;
        const bool isBefore = parent->childAt(unsigned(first + half))->precedes(node);
        first += isBefore ? half + 1 : 0;
        count = isBefore ? count - half - 1 : half;
    }
    parent->insertChild(node, unsigned(first));
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

/// Leaves go first, so that a head that is removed passes on only living nodes.
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
    // A file being loaded asks for one node after the other, so the last result is cached.
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
