#pragma once

#include <zorv/editors/code/codeitemmodel.h>

#include <QVector>
#include <memory>

class QTimer;

namespace Family {
class FamilyDocument;
}

namespace App {

/// The nodes of a document as a tree: groups with their values and sub-groups,
/// animations with their frames, frames with their contact boxes.
///
/// Nodes die at any keystroke. So the model is *stale* from an edit until it is
/// brought in line, a little later and once for many edits; while it is stale it
/// shows what it had and touches no node. Rows are looked at only when a view
/// asks for them, so that a keystroke costs nothing and a closed branch next to
/// nothing.
class NodeModel : public Zorv::CodeItemModel
{
    Q_OBJECT

public:
    explicit NodeModel(QObject* parent = nullptr);
    ~NodeModel() override;

    /// Null for none, else one of the family; a document that dies is let go of.
    void setDocument(const Zorv::CodeDocument* document) override;
    const Family::FamilyDocument* document() const { return m_document; }

    /// While inactive, as when nobody sees it, the model stays stale.
    void setActive(bool active);

    bool isStale() const;

    /// Nothing: the model has heard of the edit, and follows in its own time.
    void update() override {}

    /// Brings the rows in line now. Nothing inside of a change of the document.
    void refresh();

    /// The row of the node on a line, or of the one above it; invalid for a line
    /// above all nodes, for a node outside of the tree, and while stale.
    QModelIndex indexInLine(unsigned line) const override;
    QModelIndex nodeIndex(const Zorv::CodeNode* node) const override;

    /// The line of a node, for which the rows are brought in line first; -1 if it is gone
    /// or the document is in the middle of a change.
    int lineNo(const QModelIndex& index) const override;

    QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
    QModelIndex parent(const QModelIndex& index) const override;
    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    using QObject::parent;

signals:
    /// The rows are in line with the document.
    void refreshed();

private:
    struct Item;

    void markStale();
    bool canFollow(const Item* item) const;
    Item* itemOf(const QModelIndex& index) const;
    QModelIndex indexOf(Item* item) const;
    Item* childOf(Item* item, int row) const;
    void lookAtChildren(Item* item) const;
    void sync(Item* item);
    void syncCount(Item* item, int count);
    void removeChildren(Item* item, int first, int count);
    void insertChildren(Item* item, int first, const QVector<const Zorv::CodeNode*>& nodes);

    const Family::FamilyDocument* m_document = nullptr;
    std::unique_ptr<Item> m_root;
    QTimer* m_timer;
    quint64 m_epoch = 1;  ///< raised by each edit
    bool m_isStale = false;
    bool m_isActive = true;
};

}  // namespace App
