#include "app/code/nodemodel.h"

#include "app/code/nodechildren.h"
#include "app/look/icon.h"
#include "family/familydocument.h"
#include "family/nodepath.h"

#include <QElapsedTimer>
#include <QHash>
#include <QIcon>
#include <QTextBlock>
#include <QTimer>

#include <algorithm>
#include <vector>

namespace App {

using Zorv::CodeNode;

namespace {

// A refresh takes at most a tenth of the time, however large the file is.
constexpr int ShortestWait = 150;
constexpr int WaitPerRefresh = 10;

// The line of a node that has no name at all, such as a head that is not finished.
QString labelOf(const CodeNode* node)
{
    const QString label = Family::nodeLabel(node);
    return label.isEmpty() ? node->block().text().trimmed() : label;
}

QVariant iconOf(CodeNode::Type type)
{
    static const QHash<int, QIcon> icons{
        {CodeNode::Group, icon(QStringLiteral(":/zorvl_icons/icons/code.png"))},
        {CodeNode::Animation, icon(QStringLiteral(":/zorvl_icons/icons/anim.png"))},
        {CodeNode::Frame, icon(QStringLiteral(":/zorvl_icons/icons/sprite.png"))},
    };
    const auto found = icons.constFind(type);
    return found == icons.constEnd() ? QVariant() : QVariant(*found);
}

}  // namespace

/// One row. The node of an item of an older epoch may be dead.
struct NodeModel::Item
{
    Item(Item* parentItem, int rowInParent) : parent(parentItem), row(rowInParent) {}

    void setNode(const CodeNode* codeNode, quint64 now)
    {
        node = codeNode;
        epoch = now;
        hasLabel = false;
    }

    void renumber(int first)
    {
        for (auto i = size_t(first); i < children.size(); ++i) {
            children[i]->row = int(i);
        }
    }

    Item* parent;
    int row;
    const CodeNode* node = nullptr;
    quint64 epoch = 0;
    int count = 0;           ///< rows below, as the views know it
    bool hasLooked = false;  ///< true if `children` are there
    bool hasLabel = false;
    CodeNode::Type type = CodeNode::Root;
    QString label;
    std::vector<std::unique_ptr<Item>> children;
};

NodeModel::NodeModel(QObject* parent)
    : CodeItemModel(parent), m_root(std::make_unique<Item>(nullptr, 0)), m_timer(new QTimer(this))
{
    m_timer->setSingleShot(true);
    m_timer->setInterval(ShortestWait);
    connect(m_timer, &QTimer::timeout, this, &NodeModel::refresh);
}

NodeModel::~NodeModel() = default;

void NodeModel::setDocument(const Zorv::CodeDocument* codeDocument)
{
    const auto* document = static_cast<const Family::FamilyDocument*>(codeDocument);
    if (m_document == document) {
        return;
    }
    beginResetModel();
    if (m_document) {
        m_document->disconnect(this);
    }
    m_document = document;
    m_root = std::make_unique<Item>(nullptr, 0);
    ++m_epoch;
    m_isStale = document && (!m_isActive || document->isCodeBeingChanged());
    if (document && !m_isStale) {
        m_root->setNode(document, m_epoch);
        m_root->count = childCount(document);
    }
    endResetModel();
    m_timer->stop();
    if (!document) {
        return;
    }
    connect(document, &QTextDocument::contentsChange, this, &NodeModel::markStale);
    connect(document, &Zorv::CodeDocument::codeChanged, this, &NodeModel::markStale);
    connect(document, &Zorv::CodeDocument::closing, this, [this] { setDocument(nullptr); });
    if (m_isStale && m_isActive) {
        m_timer->start();
    }
}

void NodeModel::setActive(bool active)
{
    m_isActive = active;
    if (active && m_isStale) {
        refresh();
    }
}

bool NodeModel::isStale() const
{
    return m_isStale || (m_document && m_document->isCodeBeingChanged());
}

bool NodeModel::canFollow(const Item* item) const
{
    return m_document && item->node && item->epoch == m_epoch && !m_document->isCodeBeingChanged();
}

void NodeModel::markStale()
{
    ++m_epoch;
    m_isStale = true;
    if (m_isActive && !m_timer->isActive()) {
        m_timer->start();
    }
}

void NodeModel::refresh()
{
    if (!m_isStale || !m_document) {
        return;
    }
    if (m_document->isCodeBeingChanged()) {
        m_timer->start();
        return;
    }
    QElapsedTimer clock;
    clock.start();
    m_timer->stop();
    m_root->setNode(m_document, m_epoch);
    sync(m_root.get());
    m_isStale = false;
    m_timer->setInterval(std::max(ShortestWait, int(clock.elapsed()) * WaitPerRefresh));
    emit refreshed();
}

QModelIndex NodeModel::indexInLine(unsigned line) const
{
    if (isStale() || !m_document) {
        return {};
    }
    const QTextBlock block = m_document->findBlockByNumber(int(line));
    if (!block.isValid()) {
        return {};
    }
    const CodeNode* node = m_document->nodeInBlock(block);
    return nodeIndex(node ? node : m_document->nodeBefore(block));
}

QModelIndex NodeModel::nodeIndex(const CodeNode* node) const
{
    if (isStale() || !m_document) {
        return {};
    }
    QVector<int> path;
    for (; node && node->type() != CodeNode::Root; node = shownParent(node)) {
        path.append(shownPlace(node));
    }
    Item* item = node ? m_root.get() : nullptr;
    while (item && !path.isEmpty()) {
        item = childOf(item, path.takeLast());
    }
    return item ? indexOf(item) : QModelIndex();
}

int NodeModel::lineNo(const QModelIndex& index) const
{
    const QPersistentModelIndex row(index);
    // Rows that are looked at late are still the same rows.
    const_cast<NodeModel*>(this)->refresh();
    const Item* item = itemOf(row);
    return row.isValid() && canFollow(item) && item->node->hasLine()
               ? item->node->block().blockNumber()
               : -1;
}

QModelIndex NodeModel::index(int row, int column, const QModelIndex& parent) const
{
    if (column != 0 || parent.column() > 0) {
        return {};
    }
    Item* child = childOf(itemOf(parent), row);
    return child ? createIndex(row, 0, child) : QModelIndex();
}

QModelIndex NodeModel::parent(const QModelIndex& index) const
{
    return index.isValid() ? indexOf(itemOf(index)->parent) : QModelIndex();
}

int NodeModel::rowCount(const QModelIndex& parent) const
{
    return parent.column() > 0 ? 0 : itemOf(parent)->count;
}

int NodeModel::columnCount(const QModelIndex&) const
{
    return 1;
}

QVariant NodeModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid()) {
        return {};
    }
    Item* item = itemOf(index);
    if (!item->hasLabel && canFollow(item)) {
        item->label = labelOf(item->node);
        item->type = item->node->type();
        item->hasLabel = true;
    }
    switch (role) {
    case Qt::DisplayRole:
    case Qt::ToolTipRole:
        return item->label;
    case Qt::DecorationRole:
        return iconOf(item->type);
    default:
        return {};
    }
}

NodeModel::Item* NodeModel::itemOf(const QModelIndex& index) const
{
    return index.isValid() ? static_cast<Item*>(index.internalPointer()) : m_root.get();
}

QModelIndex NodeModel::indexOf(Item* item) const
{
    return item == m_root.get() ? QModelIndex() : createIndex(item->row, 0, item);
}

NodeModel::Item* NodeModel::childOf(Item* item, int row) const
{
    if (row < 0 || row >= item->count) {
        return nullptr;
    }
    lookAtChildren(item);
    return item->children[size_t(row)].get();
}

/// Makes the rows below an item. Those of an older epoch are blank, and filled
/// by the next refresh.
void NodeModel::lookAtChildren(Item* item) const
{
    if (item->hasLooked) {
        return;
    }
    QVector<const CodeNode*> nodes;
    if (canFollow(item)) {
        nodes = childrenOf(item->node);
    }
    item->hasLooked = true;
    for (int i = 0; i < item->count; ++i) {
        auto child = std::make_unique<Item>(item, i);
        if (i < nodes.size()) {
            child->setNode(nodes[i], m_epoch);
            child->count = childCount(nodes[i]);
        }
        item->children.push_back(std::move(child));
    }
}

/// Brings all below an item in line, whose node is right already.
void NodeModel::sync(Item* item)
{
    if (!item->hasLooked) {
        syncCount(item, childCount(item->node));
    }
    // Its signals may have made a view look.
    if (!item->hasLooked) {
        return;
    }
    const QVector<const CodeNode*> nodes = childrenOf(item->node);
    const auto& rows = item->children;
    const int before = int(rows.size());
    const int common = std::min(nodes.size(), before);
    int head = 0;
    while (head < common && rows[size_t(head)]->node == nodes[head]) {
        ++head;
    }
    int tail = 0;
    while (tail < common - head &&
           rows[size_t(before - 1 - tail)]->node == nodes[nodes.size() - 1 - tail]) {
        ++tail;
    }
    // Between these, a row stands for the node that took its place: an edited
    // head is a new node, and its branch stays open.
    const int place = common - tail;
    removeChildren(item, place, before - common);
    insertChildren(item, place, nodes.mid(place, nodes.size() - common));
    for (int i = 0; i < nodes.size(); ++i) {
        rows[size_t(i)]->setNode(nodes[i], m_epoch);
    }
    for (const auto& child : rows) {
        sync(child.get());
    }
    if (!nodes.isEmpty()) {
        emit dataChanged(index(0, 0, indexOf(item)), index(nodes.size() - 1, 0, indexOf(item)));
    }
}

/// Rows that no view has asked for are only a number.
void NodeModel::syncCount(Item* item, int count)
{
    if (count > item->count) {
        beginInsertRows(indexOf(item), item->count, count - 1);
        item->count = count;
        while (item->hasLooked && int(item->children.size()) < count) {
            item->children.push_back(std::make_unique<Item>(item, int(item->children.size())));
        }
        endInsertRows();
    } else if (count < item->count) {
        beginRemoveRows(indexOf(item), count, item->count - 1);
        item->count = count;
        if (item->hasLooked) {
            item->children.resize(size_t(count));
        }
        endRemoveRows();
    }
}

void NodeModel::removeChildren(Item* item, int first, int count)
{
    if (count <= 0) {
        return;
    }
    beginRemoveRows(indexOf(item), first, first + count - 1);
    const auto begin = item->children.begin() + first;
    item->children.erase(begin, begin + count);
    item->count -= count;
    item->renumber(first);
    endRemoveRows();
}

void NodeModel::insertChildren(Item* item, int first, const QVector<const CodeNode*>& nodes)
{
    if (nodes.isEmpty()) {
        return;
    }
    std::vector<std::unique_ptr<Item>> rows;
    for (const CodeNode* node : nodes) {
        rows.push_back(std::make_unique<Item>(item, first + int(rows.size())));
        rows.back()->setNode(node, m_epoch);
        rows.back()->count = childCount(node);
    }
    beginInsertRows(indexOf(item), first, first + nodes.size() - 1);
    item->children.insert(item->children.begin() + first, std::make_move_iterator(rows.begin()),
                          std::make_move_iterator(rows.end()));
    item->count += nodes.size();
    item->renumber(first + nodes.size());
    endInsertRows();
}

}  // namespace App
