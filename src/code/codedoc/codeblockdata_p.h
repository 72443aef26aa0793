#pragma once

#include "code/codedoc/codeblockdata.h"

#include <memory>

namespace Zorv {

class CodeDocumentPrivate;

/// Rarely needed data: most lines have neither messages nor brackets.
struct CodeBlockDetails
{
    QVector<CodeBlockData::SyntaxMessage> syntaxMessages;
    QVector<CodeBlockData::Parenthesis> parenthesis;
};

/// One line of a document and its links in the document's line index.
class CodeBlockDataPrivate
{
public:
    /// Properties of a line. The index stores the union for each subtree.
    enum Trait : quint16 {
        HasNode = 1,
        IsHead = 2,
        IsBody = 4,
        HasClass = IsHead | IsBody,
        HasError = 8,
        HasWarning = 16,
        HasDeprecation = 32,
        LacksClosing = 64,   ///< an opening bracket has no partner in the line
        LacksOpening = 128,  ///< a closing bracket has no partner in the line
        HasUnpaired = LacksClosing | LacksOpening
    };

    /// The kind of the nearest head at or above a line that has a class.
    enum HeadAbove : quint8 { NoHead, InnerHead, OutermostHead };

    static void forgetNode(CodeBlockData* data, const CodeNode* node);
    static CodeBlockDataPrivate* of(CodeBlockData* data);

    CodeBlockDetails& makeDetails();
    QTextBlock block() const;

    CodeNode* node = nullptr;
    CodeDocumentPrivate* owner = nullptr;  ///< set while the line is in the index of this document
    CodeBlockData* up = nullptr;
    CodeBlockData* left = nullptr;
    CodeBlockData* right = nullptr;
    std::unique_ptr<CodeBlockDetails> details;
    int fragment = 0;          ///< Qt's number of the block
    quint32 contextAbove = 0;  ///< context under which the line was last parsed
    quint32 context = 0;       ///< the same for the line below
    quint16 traits = 0;
    quint16 traitsBelow = 0;   ///< union of the whole subtree
    qint16 foldingIndent = 0;  ///< only for lines with a class
    qint16 lowestBelow = 0;    ///< the lowest level of a line with a class in the subtree
    quint8 headAbove = NoHead;
    bool isOutermost : 1;
    bool isFolded : 1;
    bool isParsed : 1;
    bool isUnreported : 1;  ///< so far only parsed for its node

    CodeBlockDataPrivate()
        : isOutermost(false), isFolded(false), isParsed(false), isUnreported(false)
    {
    }
};

}  // namespace Zorv
