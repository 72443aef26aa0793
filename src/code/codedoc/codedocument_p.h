#pragma once

#include "code/codedoc/codedocument.h"
#include "code/codedoc/lineindex_p.h"
#include "core/message.h"

#include <QMap>
#include <QSyntaxHighlighter>
#include <QVector>

#include <array>

namespace Zorv {

class CodeDocumentEditor;

/// Parses the lines of a document as Qt's highlighter asks for them, and keeps
/// what it finds true.
///
/// Qt highlights the edited lines and goes on as long as a line's state (the
/// head that it stands under) comes out otherwise than before. Around that a
/// pass takes care of what Qt cannot know: nodes of lines that are gone, line
/// numbers of messages, folding levels, and lines whose state above changed
/// though Qt saw no difference.
class CodeDocumentPrivate : public QSyntaxHighlighter, public CodeParserSyntax
{
public:
    /// The state of lines that stand under an animation.
    static constexpr int AnimationState = int(0x80000000);

    explicit CodeDocumentPrivate(CodeDocument* document);
    ~CodeDocumentPrivate() override;

    /// Parses every line again in one pass.
    void rehighlightAll();

    /// Parses lines at once, for nodes only, inside an edit block.
    void parseNow(QTextBlock block, const QTextBlock& behind);

    /// True if an edit by the tree must parse at once.
    bool mustParseNow() const;

    /// Takes nodes of deleted lines out of chain and tree and releases them.
    void dropDeadNodes();

    /// Called by the data of a line that dies, inside of Qt's edit.
    void lineGone(CodeBlockData* line);

    /// Drops what is remembered of places: a node has gone.
    void forgetPlaces() { counted = nullptr; }

    /// How many nodes of the kind of a child of the root stand in front of it.
    unsigned placeAmongKind(const CodeNode* child);
    static unsigned editorKey(CodeNode::Type type, unsigned group);
    static unsigned editorKey(const CodeNode* node);

    static QTextCharFormat makeFormat(bool bold, bool italic, const QColor& color);
    static std::array<QTextCharFormat, CodeParserSyntax::TokenTypeCount> m_syntaxFmts;

    void ok(TokenType type, unsigned start, unsigned end) override;
    void error(TokenType type, const QString& text, unsigned start, unsigned end) override;
    void warning(TokenType type, const QString& text, unsigned start, unsigned end) override;
    void deprecated(TokenType type, const QString& text, unsigned start, unsigned end) override;
    void parenthesis(bool opening, QChar character, int position) override;

    CodeDocument* q;
    CodeParser* parser = nullptr;
    QTextCursor cursor;
    int changeDepth = 0;
    QVector<unsigned> groups;
    QMap<unsigned, CodeDocumentEditor*> editors;
    LineIndex lines;
    quint64 parsedLines = 0;

    enum class Mark { AsCodec, Present, Absent };
    int codec = 0;
    Mark byteOrderMark = Mark::AsCodec;
    bool isFaithful = true;
    bool hasForeignLineEnds = false;

protected:
    void highlightBlock(const QString& text) override;

private:
    void aboutToParse(int from, int removed, int added);
    void parsed();
    void beginPass();
    void endPass();
    void parseDependents();
    CodeBlockData* enter(const QTextBlock& block);
    CodeNode* parseLine(const QTextBlock& block, CodeBlockData* data, const QString& text,
                        CodeParserSyntax* syntax);
    CodeNode* nodeAbove(const CodeBlockData* data) const;
    int stateOf(const CodeNode* node) const;
    void storeMessages(CodeBlockData* data, bool hadMessages);
    void updateTraits(CodeBlockData* data, const QString& text);
    void unlinkDeadNodes();
    void releaseUnlinked();
    void report(Message::Type type, CodeBlockData::SyntaxMessage::Type syntaxType, TokenType token,
                const QColor& underline, const QString& text, unsigned start, unsigned end);

    CodeBlockData* currentData = nullptr;
    QVector<Message> lineMessages;
    QVector<CodeNode*> dead;
    QVector<CodeNode*> unlinked;
    QTextBlock firstParsed;
    QTextBlock lastParsed;
    int knownBlocks = 1;
    int passDepth = 0;
    bool inEditPass = false;
    bool reports = false;
    unsigned countedKey = 0;
    const CodeNode* counted = nullptr;
    unsigned countedPlace = 0;

    friend class CodeDocument;
};

}  // namespace Zorv
