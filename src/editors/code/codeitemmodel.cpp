#include "editors/code/codeitemmodel.h"

#include "code/codedoc/animationcode.h"
#include "code/codedoc/codedocument.h"
#include "code/codedoc/groupcode.h"
#include "code/codedoc/nodechain_p.h"
#include "code/codedoc/valuecode.h"
#include "core/resourceicon_p.h"

#include <QIcon>

#include <algorithm>
#include <climits>

namespace Zorv {

namespace {

constexpr unsigned Heads = CodeNode::Group | CodeNode::Animation;

const ParentCode* asParent(const CodeNode* node)
{
    return node->type() == CodeNode::Value ? nullptr : static_cast<const ParentCode*>(node);
}

int placeOf(const CodeNode* node)
{
    return node->parentCode()->childIndex(const_cast<CodeNode*>(node));
}

bool isChildOnLine(const CodeNode* node, const CodeNode* parent, int line)
{
    return node && node->parentCode() == parent && node->firstLine() == line && placeOf(node) >= 0;
}

/// The child of `parent` that is the last head before `place`, or around it.
const CodeNode* lastHead(const CodeNode* parent, const CodeNode* place)
{
    for (const CodeNode* head = place; head; head = NodeChain::backward(head, Heads)) {
        if (head == parent || head->precedes(parent)) {
            return nullptr;
        }
        const CodeNode* child = head->type() & Heads ? head : nullptr;
        while (child && child->parentCode() != parent) {
            child = child->parentCode();
        }
        if (child) {
            return child;
        }
    }
    return nullptr;
}

/// The innermost node for a line: the child that starts on the line, searched in the
/// last group or animation above it, then recursively in the last of these inside.
/// Returns `node` if there is none. The search uses the chain of nodes, because child
/// lists can be long, and children inherited from a deleted group are not in line
/// order.
const CodeNode* nodeInLine(const CodeDocument* document, int line, const CodeNode* node)
{
    const QTextBlock block = document->findBlockByNumber(line);
    const CodeNode* own = document->nodeInBlock(block);
    const CodeNode* above = own               ? own->previous()
                            : block.isValid() ? document->nodeBefore(block)
                                              : NodeChain::tail(document);
    // A frame starts on the first line of its boxes.
    const CodeNode* frame = own && own->type() == CodeNode::Frame ? own : nullptr;
    if (!frame && block.isValid()) {
        frame = NodeChain::forward(own ? own : above, CodeNode::Frame);
    }
    for (const CodeNode* inner = node; inner; inner = lastHead(node, above)) {
        node = inner;
        for (const CodeNode* child : {frame, own}) {
            if (isChildOnLine(child, node, line)) {
                return child;
            }
        }
    }
    return node;
}

}  // namespace

class CodeItemModelPrivate
{
public:
    /// The node of an index; null if the node was deleted.
    const CodeNode* findNode(const QModelIndex& index) const
    {
        const auto* node = static_cast<const CodeNode*>(index.internalPointer());
        return root && root->isTracked(node) ? node : nullptr;
    }

    const ParentCode* parentNode(const QModelIndex& index) const
    {
        const CodeNode* node = index.isValid() ? findNode(index) : root;
        return node ? asParent(node) : nullptr;
    }

    const CodeDocument* root = nullptr;
    int count = 0;  ///< announced rows below the root
};

CodeItemModel::CodeItemModel(QObject* parent)
    : QAbstractItemModel(parent), d(std::make_unique<CodeItemModelPrivate>())
{
}

CodeItemModel::~CodeItemModel() = default;

void CodeItemModel::setDocument(const CodeDocument* document)
{
    beginResetModel();
    if (d->root) {
        disconnect(d->root, &CodeDocument::closing, this, nullptr);
    }
    d->root = document;
    d->count = document ? document->childCount() : 0;
    if (document) {
        connect(document, &CodeDocument::closing, this, [this] { setDocument(nullptr); });
    }
    endResetModel();
}

const CodeDocument* CodeItemModel::document() const
{
    return d->root;
}

void CodeItemModel::update()
{
    if (d->count > 0) {
        beginRemoveRows({}, 0, d->count - 1);
        d->count = 0;
        endRemoveRows();
    }
    const int count = d->root ? d->root->childCount() : 0;
    if (count > 0) {
        beginInsertRows({}, 0, count - 1);
        d->count = count;
        endInsertRows();
    }
}

int CodeItemModel::lineNo(const QModelIndex& index) const
{
    const CodeNode* node = index.isValid() ? d->findNode(index) : nullptr;
    return node ? node->firstLine() : -1;
}

QModelIndex CodeItemModel::indexInLine(unsigned line) const
{
    const int place = int(std::min(line, unsigned(INT_MAX)));
    return d->root ? nodeIndex(nodeInLine(d->root, place, d->root)) : QModelIndex();
}

QModelIndex CodeItemModel::nodeIndex(const CodeNode* node) const
{
    const CodeNode* top = node;
    while (top && top->parentCode() && top->parentCode()->type() != CodeNode::Root) {
        top = top->parentCode();
    }
    // Views do not know rows that have not been announced yet.
    if (!top || !top->parentCode() || top->parentCode() != d->root || placeOf(top) >= d->count) {
        return {};
    }
    auto* own = const_cast<CodeNode*>(node);
    d->root->trackNode(own);
    return createIndex(placeOf(node), 0, own);
}

QModelIndex CodeItemModel::index(int row, int column, const QModelIndex& parent) const
{
    if (row < 0 || column != 0 || parent.column() > 0 || row >= rowCount(parent)) {
        return {};
    }
    CodeNode* child = d->parentNode(parent)->childAt(unsigned(row));
    if (child) {
        d->root->trackNode(child);
    }
    // A row whose node is already gone stays, without a node, until the next update().
    return createIndex(row, 0, child);
}

QModelIndex CodeItemModel::parent(const QModelIndex& index) const
{
    const CodeNode* node = index.isValid() ? d->findNode(index) : nullptr;
    return node && node->parentCode() ? nodeIndex(node->parentCode()) : QModelIndex();
}

int CodeItemModel::rowCount(const QModelIndex& parent) const
{
    if (!parent.isValid()) {
        return d->count;
    }
    const ParentCode* node = parent.column() > 0 ? nullptr : d->parentNode(parent);
    return node ? node->childCount() : 0;
}

int CodeItemModel::columnCount(const QModelIndex&) const
{
    return 1;
}

QVariant CodeItemModel::data(const QModelIndex& index, int role) const
{
    const CodeNode* node = index.isValid() ? d->findNode(index) : nullptr;
    if (!node) {
        return {};
    }
    if (role == Qt::DecorationRole) {
        return nodeIcon(node);
    }
    return role == Qt::DisplayRole ? nodeLabel(node) : QVariant();
}

QString CodeItemModel::nodeLabel(const CodeNode* node) const
{
    switch (node->type()) {
    case CodeNode::Group:
        return static_cast<const GroupCode*>(node)->displayName();
    case CodeNode::Value:
        return static_cast<const ValueCode*>(node)->displayName();
    case CodeNode::Animation:
        return static_cast<const AnimationCode*>(node)->displayName();
    case CodeNode::Frame:
        return tr("Frame");
    default:
        return {};
    }
}

QIcon CodeItemModel::nodeIcon(const CodeNode* node) const
{
    switch (node->type()) {
    case CodeNode::Group:
        return resourceIcon(QStringLiteral(":/zorvl_icons/icons/code.png"));
    case CodeNode::Value:
        return resourceIcon(QStringLiteral(":/zorvl_icons/icons/value.png"));
    case CodeNode::Animation:
        return resourceIcon(QStringLiteral(":/zorvl_icons/icons/anim.png"));
    case CodeNode::Frame:
        return resourceIcon(QStringLiteral(":/zorvl_icons/icons/sprite.png"));
    default:
        return {};
    }
}

}  // namespace Zorv
