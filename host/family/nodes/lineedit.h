#pragma once

#include "family/grammar/linereport.h"

#include <QString>
#include <QVector>

namespace Zorv {
class CodeNode;
}

namespace Family {

/// New text for a range of columns.
struct Replacement
{
    int start;
    int end;
    QString text;
};

/// The line of a node and its parts.
struct NodeLine
{
    /// Reads the line in the context of the node. `details` is empty for a node without a document.
    explicit NodeLine(const Zorv::CodeNode* node);

    QString text;
    LineDetails details;
};

/// Edits the line of a node: changes only the replaced columns and keeps a comment. Without
/// replacements the document is not changed. The edit may replace the node.
void replaceColumns(Zorv::CodeNode* node, QVector<Replacement> replacements);

}  // namespace Family
