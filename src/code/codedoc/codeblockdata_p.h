#pragma once

#include "code/codedoc/codeblockdata.h"

#include <memory>

namespace Zorv {

class CodeDocumentPrivate;

/// What is rarely there: most lines are without messages and brackets.
struct CodeBlockDetails
{
    QVector<CodeBlockData::SyntaxMessage> syntaxMessages;
    QVector<CodeBlockData::Parenthesis> parenthesis;
};

/// One line of a document, and its place in the document's index of lines.
class CodeBlockDataPrivate
{
public:
    /// What a line is or has; the index keeps the union of each subtree.
    enum Trait : quint16 {
        HasNode = 1,
        IsHead = 2,
        IsBody = 4,
        HasClass = IsHead | IsBody,
        HasError = 8,
        HasWarning = 16,
        HasDeprecation = 32,
        LacksClosing = 64,   ///< has an opening bracket without a partner in the line
        LacksOpening = 128,  ///< has a closing one without
        HasUnpaired = LacksClosing | LacksOpening
    };

    /// What the nearest head at or above a classified line is.
    enum HeadAbove : quint8 { NoHead, InnerHead, OutermostHead };

    static void forgetNode(CodeBlockData* data, const CodeNode* node);
    static CodeBlockDataPrivate* of(CodeBlockData* data);

    CodeBlockDetails& makeDetails();
    QTextBlock block() const;

    CodeNode* node = nullptr;
    CodeDocumentPrivate* owner = nullptr;  ///< set while the line is in its index
    CodeBlockData* up = nullptr;
    CodeBlockData* left = nullptr;
    CodeBlockData* right = nullptr;
    std::unique_ptr<CodeBlockDetails> details;
    int fragment = 0;          ///< Qt's number of the block
    quint32 contextAbove = 0;  ///< the head under which the line was parsed last, by its number
    quint32 context = 0;       ///< the same for the line below
    quint16 traits = 0;
    quint16 traitsBelow = 0;   ///< of the whole subtree
    qint16 foldingIndent = 0;  ///< of a line with a class
    qint16 lowestBelow = 0;    ///< the least of the subtree's lines with a class
    quint8 headAbove = NoHead;
    bool isOutermost : 1;
    bool isFolded : 1;
    bool isParsed : 1;
    bool isUnreported : 1;  ///< parsed for its node only, so far

    CodeBlockDataPrivate()
        : isOutermost(false), isFolded(false), isParsed(false), isUnreported(false)
    {
    }
};

}  // namespace Zorv
