#pragma once

#include "editors/code/codeitemmodel.h"

#include <QVector>

namespace Zorv {

class CodeTreeModelPrivate;

/// The nodes of a code document as a tree with stable rows: expanded branches and the selection
/// survive an edit.
///
/// Any keystroke can delete nodes. So each edit makes the model *stale*; it syncs with the document
/// shortly afterwards, once for many edits. While it is stale it shows the old rows and touches no
/// node. An edited head keeps its row and the branch below it. Child rows are created only when a
/// view asks for them: a keystroke costs nothing, and a collapsed branch next to nothing.
///
/// A grammar can show its nodes in another order than the document tree, or hide some: override the
/// four `shown` functions. Main thread only.
class ZORV_EXPORT CodeTreeModel : public CodeItemModel
{
    Q_OBJECT

public:
    explicit CodeTreeModel(QObject* parent = nullptr);
    ~CodeTreeModel() override;

    void setDocument(const CodeDocument* document) override;
    const CodeDocument* document() const override;

    /// An inactive model stays stale; use it while the tree is invisible. Starts active.
    void setActive(bool active);

    /// True while the rows may be older than the last edit.
    bool isStale() const;

    /// Does nothing: the model watches the document and syncs by itself.
    void update() override;

    /// Syncs the rows now. Has no effect during a change of the document.
    void refresh();

    /// The row of the node on a line, or of the nearest node above. Invalid for a line above all
    /// nodes or after the end, for a node that is not shown, and while stale.
    QModelIndex indexInLine(unsigned line) const override;
    QModelIndex nodeIndex(const CodeNode* node) const override;

    /// The line of a node; syncs the rows first. -1 if the node is gone or the document is in the
    /// middle of a change.
    int lineNo(const QModelIndex& index) const override;

    QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
    QModelIndex parent(const QModelIndex& index) const override;
    int rowCount(const QModelIndex& parent = {}) const override;

    /// The label of a node, or the text of its line if it has none, such as an unfinished head.
    /// Also the tool tip, because rows are narrow.
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    using QObject::parent;

signals:
    /// The rows match the document again.
    void refreshed();

protected:
    /// The number of rows below a node; by default its children.
    virtual int shownCount(const CodeNode* node) const;

    /// The nodes of these rows, in order; exactly `shownCount()` of them.
    virtual QVector<const CodeNode*> shownChildren(const CodeNode* node) const;

    /// The node under which a node is shown; null if it is not shown.
    virtual const CodeNode* shownParent(const CodeNode* node) const;

    /// Its row there; -1 without one.
    virtual int shownPlace(const CodeNode* node) const;

private:
    friend class CodeTreeModelPrivate;
    std::unique_ptr<CodeTreeModelPrivate> d;
};

}  // namespace Zorv
