#pragma once

#include "zorv_export.h"

#include <QString>

namespace Zorv {

class CodeNode;
class CodeParserSyntax;
class RootCode;

/// The host's parser for one kind of code. It is called once per line of text.
///
/// The meaning of a line may depend only on its text, on the head above it (`lineHead(previous)`)
/// and, for lines of a sub-group, on the groups above that head. From the head above it, a head
/// itself may only take its place in the tree. Because of this rule a document can parse exactly
/// the lines that an edit affects: those that it changes, and those whose head has become another
/// node.
///
/// The constructor of a node decides where it belongs in the tree. A value joins the group above
/// it, a frame the animation above it; under any other head they have no parent. An animation joins
/// the root. A group joins nothing by itself, see `GroupCode`.
class ZORV_EXPORT CodeParser
{
public:
    virtual ~CodeParser();

    /// Parses one line.
    ///
    /// `previous` is the last node before the line; never null. Pass it to the constructor of a new
    /// node. `syntax` receives the tokens; it is null if only nodes are wanted.
    ///
    /// `oldNode` is the line's previous node, or null. The parser may update and return it, without
    /// checking its position: it is directly behind `previous`, and the document takes care of its
    /// parent. If a new node is needed anyway, `oldNode` is null. An updated head counts as the
    /// same head, so the lines below are not parsed again. If their meaning changes, create a new
    /// node instead.
    ///
    /// Returns the node of the line. Returns null if the line has no node; then the chain must not
    /// change. If the result is not the line's previous node, the caller releases the previous one.
    virtual CodeNode* parse(const QString& text, CodeNode* oldNode, CodeNode* previous,
                            RootCode* root, CodeParserSyntax* syntax) = 0;
};

}  // namespace Zorv
