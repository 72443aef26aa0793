#pragma once

#include "code/codedoc/codenode.h"
#include "zorv_export.h"

#include <QList>

namespace Zorv {

/// The ordered children of a parent node.
///
/// A node is in at most one list, the one of its parent. Every operation is
/// logarithmic, so that a head may have a million values. The list owns
/// nothing; a node must leave it before it is destroyed.
class ZORV_EXPORT CodeNodeList
{
public:
    int size() const;
    bool isEmpty() const { return m_root == nullptr; }

    /// The child at `index`; null if out of range.
    CodeNode* at(int index) const;

    /// The last child; null if there is none.
    CodeNode* last() const;

    /// The index of a child; -1 if it is not in the list.
    int indexOf(const CodeNode* node) const;

    /// The children of a type, in order. All of them must be of class `Node`.
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

    /// Inserts a node at `index`, or at the end if `index` is out of range. The
    /// node must not be in any list.
    void insert(unsigned index, CodeNode* node);

    /// Removes a node. Does nothing if it is not in the list.
    void remove(CodeNode* node);

    /// The nodes next to a child; null at the ends.
    static CodeNode* next(const CodeNode* node);
    static CodeNode* previous(const CodeNode* node);

private:
    CodeNode* m_root = nullptr;
};

}  // namespace Zorv
