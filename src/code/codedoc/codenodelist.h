#pragma once

#include "code/codedoc/codenode.h"
#include "zorv_export.h"

#include <QList>

namespace Zorv {

/// The children of a parent node in their order.
///
/// A node is in at most one list, that of its parent. Every operation is
/// logarithmic, so that a million values under one head can be edited. The list
/// owns nothing; a node must leave it before it dies.
class ZORV_EXPORT CodeNodeList
{
public:
    int size() const;
    bool isEmpty() const { return m_root == nullptr; }

    /// The child at `index`, null outside of the list.
    CodeNode* at(int index) const;

    /// The last child, null if there is none.
    CodeNode* last() const;

    /// The place of a child, -1 for a stranger.
    int indexOf(const CodeNode* node) const;

    /// The children of a type, which all are of class `Node`, in their order.
    template <class Node>
    QList<Node*> ofType(CodeNode::Type type) const
    {
        QList<Node*> result;
        for (CodeNode* node = at(0); node; node = next(node)) {
            if (node->type() == type) {
                result.append(static_cast<Node*>(node));
            }
        }
        return result;
    }

    /// Puts a node at `index`, or at the end if that is not inside the list.
    /// The node must be in no list.
    void insert(unsigned index, CodeNode* node);

    /// Takes a node out; nothing for a stranger.
    void remove(CodeNode* node);

    /// The nodes next to a child, null at the ends.
    static CodeNode* next(const CodeNode* node);
    static CodeNode* previous(const CodeNode* node);

private:
    CodeNode* m_root = nullptr;
};

}  // namespace Zorv
