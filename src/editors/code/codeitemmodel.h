#pragma once

#include "zorv_export.h"

#include <QAbstractItemModel>

#include <memory>

class QIcon;

namespace Zorv {

class CodeDocument;
class CodeItemModelPrivate;
class CodeNode;

/// The nodes of a code document as a tree with one column.
///
/// The internal pointer of an index is its node. Any keystroke can delete nodes; an
/// index of a deleted node has neither parent nor children. The document tracks every
/// node that has an index, so the model detects deleted ones without a search.
/// `update()` resets all rows; `CodeTreeModel` preserves what is expanded. Main thread
/// only.
class ZORV_EXPORT CodeItemModel : public QAbstractItemModel
{
    Q_OBJECT

public:
    explicit CodeItemModel(QObject* parent = nullptr);
    ~CodeItemModel() override;

    /// Null for none; not owned. A document that dies is dropped.
    virtual void setDocument(const CodeDocument* document);
    virtual const CodeDocument* document() const;

    /// Syncs the rows with the document: removes and inserts the top rows. Until then
    /// the row count stays at what was last announced to the views.
    virtual void update();

    /// The line of a node, from 0; -1 for an index without a node.
    virtual int lineNo(const QModelIndex& index) const;

    /// The index of the deepest node on a line, or of the node that the line belongs
    /// to; invalid if that is the document.
    virtual QModelIndex indexInLine(unsigned line) const;

    /// The index of a node of the document. Invalid for the document itself, for a node
    /// without a parent, and below a top row that has not been announced yet.
    virtual QModelIndex nodeIndex(const CodeNode* node) const;

    QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
    QModelIndex parent(const QModelIndex& index) const override;
    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;

    /// `nodeLabel()` and `nodeIcon()`.
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    using QObject::parent;

protected:
    /// The text of a node in the tree. By default the display name of a group, value or
    /// animation, and "Frame" for a frame.
    virtual QString nodeLabel(const CodeNode* node) const;

    /// The icon of a node in the tree. By default one of the library's icons per type
    /// of node.
    virtual QIcon nodeIcon(const CodeNode* node) const;

private:
    std::unique_ptr<CodeItemModelPrivate> d;
};

}  // namespace Zorv
