#pragma once

#include "zorv_export.h"

#include <QChar>
#include <QString>
#include <QTextBlock>
#include <QVector>

namespace Zorv {

class CodeBlockDataPrivate;
class CodeNode;

/// What a code document knows about one line of its text.
///
/// There is at most one per block, owned by the block. Main thread only.
class ZORV_EXPORT CodeBlockData : public QTextBlockUserData
{
public:
    /// A message about some columns of the line.
    struct SyntaxMessage
    {
        enum Type { Error = 0, Warning = 1, Deprecated = 2 };

        Type type;
        int start;     ///< first column
        int end;       ///< column behind the last one
        QString text;  ///< in words for the user
    };

    /// A bracket in the line.
    struct Parenthesis
    {
        enum Type { Opening = 0, Closing = 1 };

        Type type;
        QChar character;  ///< the bracket
        int position;     ///< the column
    };

    /// Notifies the document, which then removes the node of the line.
    ~CodeBlockData() override;

    /// The data of a block. Created if the block is valid and has none. Null
    /// for an invalid block.
    static CodeBlockData* blockData(const QTextBlock& block);

    /// The data of a block; null if there is none.
    static CodeBlockData* testBlockData(const QTextBlock& block);

    /// The node that the parser returned for the line, or null.
    CodeNode* codeNode() const;

    /// True if the line is folded in the editor. Stored here so that it moves
    /// with the line.
    bool isFolded() const;
    void setFolded(bool folded);

    /// True if the line contains a token other than a comment.
    bool isParsed() const;

    /// In the order in which the parser reported them.
    const QVector<SyntaxMessage>& syntaxMessages() const;
    const QVector<Parenthesis>& parenthesis() const;

    /// The folding level of the line; 0 is the outermost. Logarithmic for lines
    /// without a class, constant for others.
    int foldingIndent() const;

protected:
    /// The state is allocated together with the object, because there may be
    /// millions of lines.
    explicit CodeBlockData(CodeBlockDataPrivate* state);

private:
    friend class CodeDocument;
    friend class CodeDocumentPrivate;
    friend class LineIndex;
    friend struct LineTraits;
    friend class CodeBlockDataPrivate;
    CodeBlockDataPrivate* const d;
};

}  // namespace Zorv
