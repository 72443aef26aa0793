#pragma once

#include <QString>
#include <QVector>

namespace Zorv {
class CodeNode;
}

namespace Family {
class FamilyDocument;
}  // namespace Family

namespace Operations {

/// A node of a document, for lists.
struct TreeEntry
{
    const Zorv::CodeNode* node;
    int depth;  ///< 0 for a node without parent
};

/// All nodes of a document. Each follows its parent; siblings are in text order. Contact boxes are
/// children of their frame. A node without parent, such as a value above every group, has depth 0.
QVector<TreeEntry> nodeTree(const Family::FamilyDocument* document);

/// The text at a path: for a value what `getValue()` returns, otherwise the lines of the node. A
/// null string and `error` if the path does not exist.
QString textAt(const Family::FamilyDocument* document, const QString& path, QString* error);

}  // namespace Operations
