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

/// A node of a document as lists show it.
struct TreeEntry
{
    const Zorv::CodeNode* node;
    int depth;  ///< 0 for what stands in no other node
};

/// All nodes of a document, each behind the one that it belongs to, and what
/// belongs to one in the order of the text. Contact boxes stand under their
/// frame. What has no parent (a value above every group) stands at depth 0.
QVector<TreeEntry> nodeTree(const Family::FamilyDocument* document);

/// What a path names, as text: a value, as `getValue()` gives it, else the
/// lines of the node. A null string, and `error`, for a path that names nothing.
QString textAt(const Family::FamilyDocument* document, const QString& path, QString* error);

}  // namespace Operations
