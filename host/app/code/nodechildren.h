#pragma once

#include <QVector>

namespace Zorv {
class CodeNode;
}

namespace App {

/// How many rows stand under a node.
int childCount(const Zorv::CodeNode* node);

/// What stands under a node, in the order in which it is shown: the children of
/// the tree, and under a frame its contact boxes.
QVector<const Zorv::CodeNode*> childrenOf(const Zorv::CodeNode* node);

/// The node under which a node is shown, null for one that stands outside of the
/// tree.
const Zorv::CodeNode* shownParent(const Zorv::CodeNode* node);

/// The place among the children of `shownParent()`, -1 without one.
int shownPlace(const Zorv::CodeNode* node);

}  // namespace App
