#pragma once

#include "code/codedoc/codedocument.h"
#include "code/codedoc/editordata.h"
#include "code/codedoc/lineindex_p.h"
#include "code/codedoc/steptitles_p.h"
#include "core/message.h"

#include <QMap>
#include <QSet>
#include <QSyntaxHighlighter>
#include <QVector>

#include <array>
#include <map>
#include <memory>

namespace Zorv {

class CodeDocumentEditor;

/// Parses the lines of a document as Qt's highlighter asks for them, and keeps
/// what it finds true.
///
/// Qt highlights the edited lines and goes on as long as a line's state comes
/// out otherwise than before. That state follows the head above a line only
/// roughly, so each head has a number of its own, its context, each line keeps
/// the one that it was parsed under, and a pass goes on until that is true of
/// the next line. Each node of these lines comes to the place in the tree that
/// the text above alone gives it, as in a fresh parse. Around it, the pass takes
/// care of what Qt cannot know: nodes of lines that are gone, line numbers of
/// messages, and folding levels.
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

    /// Takes a node out of tree and chain while it is whole, then releases it:
    /// lists that hear of it may still ask for its name.
    static void retire(CodeNode* node);

    /// Tells the editor of a new child of the root: at once, or behind the call
    /// of the grammar in which the node is still being made.
    void announce(CodeNode* child);

    /// Called by the data of a line that dies, inside of Qt's edit.
    void lineGone(CodeBlockData* line);

    /// Forgets a child of the root that goes.
    void forget(CodeNode* child);

    /// A tracked node leaves the chain that it stands in.
    static void untrack(CodeNode* node);

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
    StepTitles titles;

    /// The length of the history when the open change began, to see whether that
    /// has edited anything yet.
    int stepsBeforeChange = 0;
    static constexpr int Begun = -1;
    QVector<unsigned> groups;
    QMap<unsigned, CodeDocumentEditor*> editors;
    LineIndex lines;
    QSet<const CodeNode*> tracked;
    std::map<QString, std::unique_ptr<EditorData>> editorData;  ///< by the name of its editor
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
    void tellLevels(const CodeBlockData* last);
    CodeBlockData* enter(const QTextBlock& block);
    /// Gives the line its node and its context; returns the old node if that has to go.
    CodeNode* parseLine(const QTextBlock& block, CodeBlockData* data, const QString& text,
                        CodeParserSyntax* syntax);
    CodeNode* nodeAbove(const CodeBlockData* data) const;
    static int stateOf(const CodeNode* node);
    quint32 contextOf(CodeNode* node, CodeNode* old, const CodeBlockData* data,
                      const QString& text);
    static bool knowsPlace(const CodeNode* node);
    static void place(CodeNode* node, bool isKept);
    static void placeAmongSiblings(CodeNode* node);
    void storeMessages(CodeBlockData* data, bool hadMessages);
    void updateTraits(CodeBlockData* data, const QString& text);
    static quint16 traitsOfParentheses(const QVector<CodeBlockData::Parenthesis>& parentheses);
    void unlinkDeadNodes();
    void releaseUnlinked();
    void report(Message::Type type, CodeBlockData::SyntaxMessage::Type syntaxType, TokenType token,
                const QColor& underline, const QString& text, unsigned start, unsigned end);

    CodeBlockData* currentData = nullptr;
    QVector<Message> lineMessages;
    QVector<CodeNode*> newcomers;
    bool isParsing = false;
    quint32 contexts = 0;
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
