#pragma once

#include "zorv_export.h"

#include <QChar>
#include <QString>
#include <QTextBlock>
#include <QVector>

namespace Zorv {

class CodeBlockDataPrivate;
class CodeNode;

/// What a code document knows of one line of its text.
///
/// At most one for each block, owned by it. Main thread only.
class ZORV_EXPORT CodeBlockData : public QTextBlockUserData
{
public:
    /// A message on columns of the line.
    struct SyntaxMessage
    {
        enum Type { Error = 0, Warning = 1, Deprecated = 2 };

        Type type;
        int start;     ///< column of the first character
        int end;       ///< behind the last one
        QString text;  ///< for the person
    };

    /// A bracket of the line.
    struct Parenthesis
    {
        enum Type { Opening = 0, Closing = 1 };

        Type type;
        QChar character;  ///< the bracket itself
        int position;     ///< its column
    };

    /// The document hears of it: the node of the line is to go.
    ~CodeBlockData() override;

    /// The data of a block, made if the block is valid and has none; null for
    /// an invalid block.
    static CodeBlockData* blockData(const QTextBlock& block);

    /// The data of a block, or null; makes nothing.
    static CodeBlockData* testBlockData(const QTextBlock& block);

    /// The node that the grammar returned for the line, or null.
    CodeNode* codeNode() const;

    /// Folded in the editor; kept here so that it moves with the line.
    bool isFolded() const;
    void setFolded(bool folded);

    /// True if the line holds a token other than a comment.
    bool isParsed() const;

    /// In the order in which the grammar reported them.
    const QVector<SyntaxMessage>& syntaxMessages() const;
    const QVector<Parenthesis>& parenthesis() const;

    /// The level of the line for folding, 0 at the outermost. Logarithmic for
    /// a line of no class, constant for others.
    int foldingIndent() const;

protected:
    /// The state lies in the same piece of memory: there are millions of lines.
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
