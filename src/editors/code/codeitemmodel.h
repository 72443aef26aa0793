#pragma once

#include "zorv_export.h"

#include <QAbstractItemModel>

#include <memory>

class QIcon;

namespace Zorv {

class CodeDocument;
class CodeItemModelPrivate;
class CodeNode;

/// The nodes of a code document as a tree of one column.
///
/// The pointer of an index is its node. Nodes die at any keystroke, so an index
/// whose node is gone has neither parent nor children; the document tracks the
/// nodes that indexes were made of, and tells these from others without a walk.
/// `update()` announces all rows anew; `CodeTreeModel` keeps what is expanded. Main
/// thread only.
class ZORV_EXPORT CodeItemModel : public QAbstractItemModel
{
    Q_OBJECT

public:
    explicit CodeItemModel(QObject* parent = nullptr);
    ~CodeItemModel() override;

    /// Null for none; not owned, and let go of when it dies.
    virtual void setDocument(const CodeDocument* document);
    virtual const CodeDocument* document() const;

    /// Brings the rows in line with the document: the top ones are removed and
    /// inserted. Until then there are as many as were announced.
    virtual void update();

    /// The line of a node from 0; -1 for an index without one.
    virtual int lineNo(const QModelIndex& index) const;

    /// The index of the deepest node on a line, or of the one that it belongs to;
    /// invalid if that is the document.
    virtual QModelIndex indexInLine(unsigned line) const;

    /// The index of a node of the document that is there; invalid for the document, for
    /// a node without a parent, and below a top row that is not announced yet.
    virtual QModelIndex nodeIndex(const CodeNode* node) const;

    QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
    QModelIndex parent(const QModelIndex& index) const override;
    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;

    /// `nodeLabel()` and `nodeIcon()`.
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    using QObject::parent;

protected:
    /// The text of a node in the tree. The default is the display name of a group, a
    /// value or an animation, and "Frame" for a frame.
    virtual QString nodeLabel(const CodeNode* node) const;

    /// The picture of a node in the tree. The default has one of the library's for
    /// each type of node.
    virtual QIcon nodeIcon(const CodeNode* node) const;

private:
    std::unique_ptr<CodeItemModelPrivate> d;
};

}  // namespace Zorv
