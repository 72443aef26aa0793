#pragma once

#include "zorv_export.h"

#include <QString>

namespace Zorv {

class CodeNode;
class CodeParserSyntax;
class RootCode;

/// The grammar of a host: one call for each line of text.
///
/// What a line means may depend on its text and on the head that it stands
/// under (`lineHead(previous)`), and for a sub-group's lines on the groups above
/// that; nothing else. A head itself may take no more than its place in the tree
/// from the one above it. Then a document parses exactly the lines again that an
/// edit concerns: those that it changes, and those whose head has become another
/// node.
///
/// Where a node belongs in the tree is said by its constructor. A value joins the
/// group above it and a frame the animation above it by themselves, and have no
/// parent under another head. An animation joins the root. A group joins nothing:
/// see `GroupCode`.
class ZORV_EXPORT CodeParser
{
public:
    virtual ~CodeParser();

    /// Parses one line.
    ///
    /// `previous` is the last node before the line, never null; a new node is
    /// constructed with it. `syntax` takes the tokens; null if only nodes are
    /// wanted.
    ///
    /// `oldNode` is the node that the line had before, or null. It can be brought
    /// up to date and returned, without a look at where it stands: it stands right
    /// behind `previous`, and the document sees to its parent; where a new node is
    /// needed it gives null. A head that is brought up to date stays the same head,
    /// and the lines below it are not parsed again: if they come to mean something
    /// else, make a new one.
    ///
    /// The result is the node of the line, null for a line without one, and
    /// then the chain is left alone. If it is not the node that the line had, the
    /// caller releases that.
    virtual CodeNode* parse(const QString& text, CodeNode* oldNode, CodeNode* previous,
                            RootCode* root, CodeParserSyntax* syntax) = 0;
};

}  // namespace Zorv
