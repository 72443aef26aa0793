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

/// Parses the lines of a document when Qt's highlighter asks for them, and keeps all derived data
/// up to date.
///
/// Qt highlights the edited lines and continues as long as the state of a line changes. The state
/// only approximates the head above a line. So each head also has a unique number, its context, and
/// each line stores the context it was parsed under. A pass continues until the next line's context
/// is correct. Each node of these lines is put where a complete parse would put it in the tree. A
/// pass also handles what Qt cannot know: nodes of deleted lines, line numbers of messages and
/// folding levels.
class CodeDocumentPrivate : public QSyntaxHighlighter, public CodeParserSyntax
{
public:
    /// The block state of lines below an animation head.
    static constexpr int AnimationState = int(0x80000000);

    explicit CodeDocumentPrivate(CodeDocument* document);
    ~CodeDocumentPrivate() override;

    /// Parses every line again in one pass.
    void rehighlightAll();

    /// Parses lines at once inside an edit block, for their nodes only.
    void parseNow(QTextBlock block, const QTextBlock& behind);

    /// True if an edit through the tree must be parsed at once.
    bool mustParseNow() const;

    /// Removes nodes of deleted lines from chain and tree and releases them.
    void dropDeadNodes();

    /// Removes a node from tree and chain, then releases it. The order matters: lists that are
    /// notified may still ask the node for its name, so it must be complete.
    static void retire(CodeNode* node);

    /// Notifies the editor of a new child of the root: at once, or after the parser call that is
    /// still creating the node.
    void announce(CodeNode* child);

    /// Called by the data of a deleted line, inside Qt's edit.
    void lineGone(CodeBlockData* line);

    /// Handles the removal of a child of the root.
    void forget(CodeNode* child);

    /// A tracked node leaves its chain.
    static void untrack(CodeNode* node);

    /// The number of nodes before `child`, a child of the root, that are of the same kind.
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

    /// The length of the undo history when the open change began, to see whether it has edited
    /// anything yet.
    int stepsBeforeChange = 0;
    static constexpr int Begun = -1;
    QVector<unsigned> groups;
    QMap<unsigned, CodeDocumentEditor*> editors;
    LineIndex lines;
    QSet<const CodeNode*> tracked;
    std::map<QString, std::unique_ptr<EditorData>> editorData;  ///< by the name of the editor
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
    /// Updates the node and context of a line. Returns the old node if it must be retired.
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
