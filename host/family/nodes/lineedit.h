#pragma once

#include "family/grammar/linereport.h"

#include <QString>
#include <QVector>

namespace Zorv {
class CodeNode;
}

namespace Family {

/// New text for columns of a line.
struct Replacement
{
    int start;
    int end;
    QString text;
};

/// The line of a node and its parts.
struct NodeLine
{
    /// Reads the line under the node's own head. Empty for a node without one.
    explicit NodeLine(const Zorv::CodeNode* node);

    QString text;
    LineDetails details;
};

/// Edits the line of a node: the replaced columns alone change, a comment
/// stays. Nothing to replace leaves the document alone. The node may be another
/// one afterwards.
void replaceColumns(Zorv::CodeNode* node, QVector<Replacement> replacements);

}  // namespace Family
