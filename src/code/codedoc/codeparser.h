#pragma once

#include "zorv_export.h"

#include <QString>

namespace Zorv {

class CodeNode;
class CodeParserSyntax;
class RootCode;

/// The grammar of a host: one call for each line of text.
///
/// What a line means may depend on its text and on the head (group or
/// animation) that it stands under, found from `previous`; nothing else. Then
/// a document parses exactly the lines again that an edit concerns.
class ZORV_EXPORT CodeParser
{
public:
    virtual ~CodeParser();

    /// Parses one line.
    ///
    /// `oldNode` is the node that the line had before, or null. It can be
    /// brought up to date and returned if its place in the chain is the same:
    /// `previous` stands right before it. `previous` is the last node before
    /// the line, never null; a new node is constructed with it. `syntax` takes
    /// the tokens; null if only nodes are wanted.
    ///
    /// The result is the node of the line, null for a line without one, and
    /// then the chain is left alone. If it is not `oldNode`, the caller
    /// releases `oldNode`.
    virtual CodeNode* parse(const QString& text, CodeNode* oldNode, CodeNode* previous,
                            RootCode* root, CodeParserSyntax* syntax) = 0;
};

}  // namespace Zorv
