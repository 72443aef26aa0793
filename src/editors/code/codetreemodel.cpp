#include "editors/code/codetreemodel.h"

#include "code/codedoc/codedocument.h"
#include "code/codedoc/parentcode.h"

#include <QElapsedTimer>
#include <QIcon>
#include <QTextBlock>
#include <QTimer>

#include <algorithm>
#include <vector>

// How a refresh works: the model keeps its own tree of rows, and each row points to a node. An edit
// only increments `epoch`, which makes every row distrust its node. refresh() then walks the rows
// that views have asked for and compares them with the current nodes. Per parent it skips the nodes
// that match at the head and at the tail. What is left in the middle is one edited stretch: its
// rows are reused in order for the new nodes, and only the difference in number is inserted or
// removed. So persistent indexes, and with them expanded branches and the selection, survive.

namespace Zorv {

namespace {

// Wait ten times as long as the last refresh took, so that refreshing uses at most a tenth of the
// time however large the file is. In milliseconds.
constexpr int ShortestWait = 150;
constexpr int WaitPerRefresh = 10;

const ParentCode* asParent(const CodeNode* node)
{
    return node->type() == CodeNode::Value ? nullptr : static_cast<const ParentCode*>(node);
}

/// One row. If its epoch is older than the model's, its node may be deleted: do not touch it.
struct TreeRow
{
    TreeRow(TreeRow* parentRow, int place) : parent(parentRow), row(place) {}

    void renumber(int first)
    {
        for (auto i = size_t(first); i < children.size(); ++i) {
            children[i]->row = int(i);
        }
    }

    TreeRow* parent;
    int row;
    const CodeNode* node = nullptr;
    quint64 epoch = 0;
    int count = 0;           ///< child rows, as the views know them
    bool hasLooked = false;  ///< true if `children` has been filled
    bool hasLabel = false;
    QString label;
    QIcon icon;
    std::vector<std::unique_ptr<TreeRow>> children;
};

}  // namespace

class CodeTreeModelPrivate
{
public:
    explicit CodeTreeModelPrivate(CodeTreeModel* model)
        : q(model), root(std::make_unique<TreeRow>(nullptr, 0))
    {
    }

    void markStale();
    bool canFollow(const TreeRow* row) const;
    void setNode(TreeRow* row, const CodeNode* node) const;
    bool isOf(const std::unique_ptr<TreeRow>& row, const CodeNode* node) const;
    TreeRow* rowOf(const QModelIndex& index) const;
    QModelIndex indexOf(TreeRow* row) const;
    TreeRow* childOf(TreeRow* row, int place) const;
    void lookAtChildren(TreeRow* row) const;
    void lookAtNode(TreeRow* row) const;
    void sync(TreeRow* row);
    void syncCount(TreeRow* row, int count);
    void removeChildren(TreeRow* row, int first, int count);
    void insertChildren(TreeRow* row, int first, const QVector<const CodeNode*>& nodes);

    CodeTreeModel* q;
    const CodeDocument* document = nullptr;
    std::unique_ptr<TreeRow> root;
    QTimer timer;
    quint64 epoch = 1;  ///< incremented by each edit
    bool isStale = false;
    bool isActive = true;
};

CodeTreeModel::CodeTreeModel(QObject* parent)
    : CodeItemModel(parent), d(std::make_unique<CodeTreeModelPrivate>(this))
{
    d->timer.setSingleShot(true);
    d->timer.setInterval(ShortestWait);
    connect(&d->timer, &QTimer::timeout, this, &CodeTreeModel::refresh);
}

CodeTreeModel::~CodeTreeModel() = default;

void CodeTreeModel::setDocument(const CodeDocument* document)
{
    if (d->document == document) {
        return;
    }
    beginResetModel();
    if (d->document) {
        d->document->disconnect(this);
    }
    d->document = document;
    d->root = std::make_unique<TreeRow>(nullptr, 0);
    ++d->epoch;
    d->isStale = document && (!d->isActive || document->isCodeBeingChanged());
    if (document && !d->isStale) {
        d->setNode(d->root.get(), document);
        d->root->count = shownCount(document);
    }
    endResetModel();
    d->timer.stop();
    if (!document) {
        return;
    }
    const auto markStale = [this] { d->markStale(); };
    connect(document, &QTextDocument::contentsChange, this, markStale);
    connect(document, &CodeDocument::codeChanged, this, markStale);
    connect(document, &CodeDocument::closing, this, [this] { setDocument(nullptr); });
    if (d->isStale && d->isActive) {
        d->timer.start();
    }
}

const CodeDocument* CodeTreeModel::document() const
{
    return d->document;
}

void CodeTreeModel::setActive(bool active)
{
    d->isActive = active;
    if (active && d->isStale) {
        refresh();
    }
}

bool CodeTreeModel::isStale() const
{
    return d->isStale || (d->document && d->document->isCodeBeingChanged());
}

void CodeTreeModel::update() {}

void CodeTreeModel::refresh()
{
    if (!d->isStale || !d->document) {
        return;
    }
    if (d->document->isCodeBeingChanged()) {
        d->timer.start();
        return;
    }
    QElapsedTimer clock;
    clock.start();
    d->timer.stop();
    d->setNode(d->root.get(), d->document);
    d->sync(d->root.get());
    d->isStale = false;
    d->timer.setInterval(std::max(ShortestWait, int(clock.elapsed()) * WaitPerRefresh));
    emit refreshed();
}

QModelIndex CodeTreeModel::indexInLine(unsigned line) const
{
    if (isStale() || !d->document) {
        return {};
    }
    const QTextBlock block = d->document->findBlockByNumber(int(line));
    if (!block.isValid()) {
        return {};
    }
    const CodeNode* node = d->document->nodeInBlock(block);
    return nodeIndex(node ? node : d->document->nodeBefore(block));
}

QModelIndex CodeTreeModel::nodeIndex(const CodeNode* node) const
{
    if (isStale() || !d->document) {
        return {};
    }
    QVector<int> path;
    for (; node && node->type() != CodeNode::Root; node = shownParent(node)) {
        path.append(shownPlace(node));
    }
    TreeRow* row = node ? d->root.get() : nullptr;
    while (row && !path.isEmpty()) {
        row = d->childOf(row, path.takeLast());
    }
    return row ? d->indexOf(row) : QModelIndex();
}

int CodeTreeModel::lineNo(const QModelIndex& index) const
{
    const QPersistentModelIndex place(index);
    // The rows stay logically the same: a refresh only makes up for a delay.
    const_cast<CodeTreeModel*>(this)->refresh();
    const TreeRow* row = d->rowOf(place);
    return place.isValid() && d->canFollow(row) && row->node->hasLine()
               ? row->node->block().blockNumber()
               : -1;
}

QModelIndex CodeTreeModel::index(int row, int column, const QModelIndex& parent) const
{
    if (column != 0 || parent.column() > 0) {
        return {};
    }
    TreeRow* child = d->childOf(d->rowOf(parent), row);
    return child ? createIndex(row, 0, child) : QModelIndex();
}

QModelIndex CodeTreeModel::parent(const QModelIndex& index) const
{
    return index.isValid() ? d->indexOf(d->rowOf(index)->parent) : QModelIndex();
}

int CodeTreeModel::rowCount(const QModelIndex& parent) const
{
    return parent.column() > 0 ? 0 : d->rowOf(parent)->count;
}

QVariant CodeTreeModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid()) {
        return {};
    }
    TreeRow* row = d->rowOf(index);
    d->lookAtNode(row);
    switch (role) {
    case Qt::DisplayRole:
    case Qt::ToolTipRole:
        return row->label;
    case Qt::DecorationRole:
        return row->icon;
    default:
        return {};
    }
}

int CodeTreeModel::shownCount(const CodeNode* node) const
{
    const ParentCode* parent = asParent(node);
    return parent ? parent->childCount() : 0;
}

QVector<const CodeNode*> CodeTreeModel::shownChildren(const CodeNode* node) const
{
    QVector<const CodeNode*> children(CodeTreeModel::shownCount(node));
    for (int i = 0; i < children.size(); ++i) {
        children[i] = asParent(node)->childAt(unsigned(i));
    }
    return children;
}

const CodeNode* CodeTreeModel::shownParent(const CodeNode* node) const
{
    return node->parentCode();
}

int CodeTreeModel::shownPlace(const CodeNode* node) const
{
    const ParentCode* parent = node->parentCode();
    return parent ? parent->childIndex(const_cast<CodeNode*>(node)) : -1;
}

void CodeTreeModelPrivate::markStale()
{
    ++epoch;
    isStale = true;
    if (isActive && !timer.isActive()) {
        timer.start();
    }
}

bool CodeTreeModelPrivate::canFollow(const TreeRow* row) const
{
    return document && row->node && row->epoch == epoch && !document->isCodeBeingChanged();
}

void CodeTreeModelPrivate::setNode(TreeRow* row, const CodeNode* node) const
{
    if (row != root.get()) {
        document->trackNode(const_cast<CodeNode*>(node));
    }
    row->node = node;
    row->epoch = epoch;
    row->hasLabel = false;
}

/// Compares addresses, but a new node can reuse the address of a deleted one. A new node is not
/// tracked yet.
bool CodeTreeModelPrivate::isOf(const std::unique_ptr<TreeRow>& row, const CodeNode* node) const
{
    return row->node == node && document->isTracked(node);
}

TreeRow* CodeTreeModelPrivate::rowOf(const QModelIndex& index) const
{
    return index.isValid() ? static_cast<TreeRow*>(index.internalPointer()) : root.get();
}

QModelIndex CodeTreeModelPrivate::indexOf(TreeRow* row) const
{
    return row == root.get() ? QModelIndex() : q->createIndex(row->row, 0, row);
}

TreeRow* CodeTreeModelPrivate::childOf(TreeRow* row, int place) const
{
    if (place < 0 || place >= row->count) {
        return nullptr;
    }
    lookAtChildren(row);
    return row->children[size_t(place)].get();
}

/// Creates the child rows. Without a valid node they stay blank until the next refresh fills them.
void CodeTreeModelPrivate::lookAtChildren(TreeRow* row) const
{
    if (row->hasLooked) {
        return;
    }
    QVector<const CodeNode*> nodes;
    if (canFollow(row)) {
        nodes = q->shownChildren(row->node);
    }
    row->hasLooked = true;
    for (int i = 0; i < row->count; ++i) {
        auto child = std::make_unique<TreeRow>(row, i);
        if (i < nodes.size()) {
            setNode(child.get(), nodes[i]);
            child->count = q->shownCount(nodes[i]);
        }
        row->children.push_back(std::move(child));
    }
}

void CodeTreeModelPrivate::lookAtNode(TreeRow* row) const
{
    if (row->hasLabel || !canFollow(row)) {
        return;
    }
    row->label = q->nodeLabel(row->node);
    if (row->label.isEmpty()) {
        row->label = row->node->block().text().trimmed();
    }
    row->icon = q->nodeIcon(row->node);
    row->hasLabel = true;
}

/// Syncs everything below a row. The row's own node must be current.
void CodeTreeModelPrivate::sync(TreeRow* row)
{
    if (!row->hasLooked) {
        syncCount(row, q->shownCount(row->node));
    }
    // The signals of syncCount() may have made a view ask for the children.
    if (!row->hasLooked) {
        return;
    }
    const QVector<const CodeNode*> nodes = q->shownChildren(row->node);
    const auto& rows = row->children;
    const int before = int(rows.size());
    const int common = std::min(nodes.size(), before);
    int head = 0;
    while (head < common && isOf(rows[size_t(head)], nodes[head])) {
        ++head;
    }
    int tail = 0;
    while (tail < common - head &&
           isOf(rows[size_t(before - 1 - tail)], nodes[nodes.size() - 1 - tail])) {
        ++tail;
    }
    // Rows in the middle are reused for the nodes in the same place: an edited head is a new node,
    // and its branch has to stay expanded.
    const int place = common - tail;
    removeChildren(row, place, before - common);
    insertChildren(row, place, nodes.mid(place, nodes.size() - common));
    for (int i = 0; i < nodes.size(); ++i) {
        setNode(rows[size_t(i)].get(), nodes[i]);
    }
    for (const auto& child : rows) {
        sync(child.get());
    }
    if (!nodes.isEmpty()) {
        const QModelIndex parent = indexOf(row);
        emit q->dataChanged(q->index(0, 0, parent), q->index(nodes.size() - 1, 0, parent));
    }
}

/// Rows that no view has asked for exist only as a number.
void CodeTreeModelPrivate::syncCount(TreeRow* row, int count)
{
    if (count > row->count) {
        q->beginInsertRows(indexOf(row), row->count, count - 1);
        row->count = count;
        while (row->hasLooked && int(row->children.size()) < count) {
            row->children.push_back(std::make_unique<TreeRow>(row, int(row->children.size())));
        }
        q->endInsertRows();
    } else if (count < row->count) {
        q->beginRemoveRows(indexOf(row), count, row->count - 1);
        row->count = count;
        if (row->hasLooked) {
            row->children.resize(size_t(count));
        }
        q->endRemoveRows();
    }
}

void CodeTreeModelPrivate::removeChildren(TreeRow* row, int first, int count)
{
    if (count <= 0) {
        return;
    }
    q->beginRemoveRows(indexOf(row), first, first + count - 1);
    const auto begin = row->children.begin() + first;
    row->children.erase(begin, begin + count);
    row->count -= count;
    row->renumber(first);
    q->endRemoveRows();
}

void CodeTreeModelPrivate::insertChildren(TreeRow* row, int first,
                                          const QVector<const CodeNode*>& nodes)
{
    if (nodes.isEmpty()) {
        return;
    }
    std::vector<std::unique_ptr<TreeRow>> rows;
    for (const CodeNode* node : nodes) {
        rows.push_back(std::make_unique<TreeRow>(row, first + int(rows.size())));
        setNode(rows.back().get(), node);
        rows.back()->count = q->shownCount(node);
    }
    q->beginInsertRows(indexOf(row), first, first + nodes.size() - 1);
    row->children.insert(row->children.begin() + first, std::make_move_iterator(rows.begin()),
                         std::make_move_iterator(rows.end()));
    row->count += nodes.size();
    row->renumber(first + nodes.size());
    q->endInsertRows();
}

}  // namespace Zorv
