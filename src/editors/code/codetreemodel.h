#pragma once

#include "editors/code/codeitemmodel.h"

#include <QVector>

namespace Zorv {

class CodeTreeModelPrivate;

/// The nodes of a code document as a tree whose rows stay: what is open in a view, and what is
/// selected, outlives an edit.
///
/// Nodes die at any keystroke. So the model is *stale* from an edit until it is brought in line, a
/// little later and once for many edits; while it is stale it shows what it had and touches no
/// node. A head that was edited keeps its row, and the branch below it. Rows are looked at only
/// when a view asks for them: a keystroke costs nothing, and a closed branch next to nothing.
///
/// A grammar that shows its nodes in another order than the tree has them, or nodes that have no
/// place in it, overrides the four `shown` operations. Main thread only.
class ZORV_EXPORT CodeTreeModel : public CodeItemModel
{
    Q_OBJECT

public:
    explicit CodeTreeModel(QObject* parent = nullptr);
    ~CodeTreeModel() override;

    void setDocument(const CodeDocument* document) override;
    const CodeDocument* document() const override;

    /// While inactive, as when nobody sees it, the model stays stale. It starts active.
    void setActive(bool active);

    /// True while rows may be those of before an edit.
    bool isStale() const;

    /// Nothing: the model has heard of the edit, and follows in its own time.
    void update() override;

    /// Brings the rows in line now. Nothing inside of a change of the document.
    void refresh();

    /// The row of the node on a line, or of the one above it; invalid for a line above all nodes
    /// or behind the end, for a node that is not shown, and while stale.
    QModelIndex indexInLine(unsigned line) const override;
    QModelIndex nodeIndex(const CodeNode* node) const override;

    /// The line of a node, for which the rows are brought in line first; -1 if it is gone or the
    /// document is in the middle of a change.
    int lineNo(const QModelIndex& index) const override;

    QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
    QModelIndex parent(const QModelIndex& index) const override;
    int rowCount(const QModelIndex& parent = {}) const override;

    /// The label of a node, or its line where it has none, such as a head that is not finished:
    /// for the row, and as a tool tip, for rows are narrow.
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    using QObject::parent;

signals:
    /// The rows are in line with the document.
    void refreshed();

protected:
    /// How many rows stand below a node; by default, its children.
    virtual int shownCount(const CodeNode* node) const;

    /// These rows, in their order; as many as `shownCount()`.
    virtual QVector<const CodeNode*> shownChildren(const CodeNode* node) const;

    /// The node under which a node is shown, null for one that is not.
    virtual const CodeNode* shownParent(const CodeNode* node) const;

    /// Its place there, -1 without one.
    virtual int shownPlace(const CodeNode* node) const;

private:
    friend class CodeTreeModelPrivate;
    std::unique_ptr<CodeTreeModelPrivate> d;
};

}  // namespace Zorv
