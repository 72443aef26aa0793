#pragma once

#include "code/codedoc/codeparsersyntax.h"
#include "code/codedoc/rootcode.h"
#include "core/filewatchobject.h"
#include "core/projectfile.h"
#include "zorv_export.h"

#include <QTextCursor>
#include <QTextDocument>

#include <initializer_list>
#include <memory>

class QTextCharFormat;

namespace Zorv {

class CodeDocumentEditor;
class CodeDocumentPrivate;
class CodeParser;
class EditorData;

/// A code file: its text, the root of the tree of its nodes, a file of a
/// project, and a watched file, in one object.
///
/// The text is the only truth. The tree is derived from it line by line by the
/// host's grammar, as Qt's highlighter comes by; a change to the tree is an edit
/// of the text. There is one history, that of the text. After every edit, undo
/// and redo, tree, messages and folding are those that a fresh parse would
/// give, and only the lines that an edit concerns are parsed again.
///
/// Two settings switch it on, of the document, its project or the host, and are
/// off where nobody gives them. Without "parseCode" no group is enabled, not even
/// 0, so that a grammar that asks makes no nodes and reports nothing, and edits by
/// the tree are not parsed at once. Without "highlightCode" the grammar makes
/// nodes and reports nothing.
///
/// The host derives from it and overrides `release()`, which serves both as
/// that of a node and of a file: the first call runs `destroy()`, the nested
/// one disposes of the object. A document works without a project. Main thread
/// only.
class ZORV_EXPORT CodeDocument : public QTextDocument,
                                 public RootCode,
                                 public ProjectFile,
                                 public FileWatchObject
{
    Q_OBJECT

public:
    /// `tag` is for the grammar. The document is empty, has no parser, and its
    /// codec is UTF-8.
    explicit CodeDocument(short tag);

    /// Releases the registered editors, then clears the text; nodes that are
    /// left are released.
    ~CodeDocument() override;

    /// A number that the project built on this document keeps.
    virtual int projectKind() const = 0;

    /// What a line is for folding, from its text alone: 0 no class, 1 a head,
    /// 2 a body, and with 4 added a head of the outermost level.
    virtual int blockFolding(const QString& line) const = 0;

    /// @name The file
    /// @{
    QString fileName() const override;
    bool fromFile(Archive& archive, const QString& fileName, bool asCopy) override;

    /// As above, with a codec by its number (negative to detect) and, if
    /// `watch`, with the file's watch moved to the new name.
    bool fromFile(Archive& archive, const QString& fileName, int codec, bool watch,
                  bool asCopy = false);

    /// Takes a text as the content of a file without a name.
    virtual void fromString(const QString& text);

    /// Writes the text with a carriage return and a line feed at every line
    /// end, in the document's codec.
    bool toFile(Archive& archive, const QString& fileName, bool asCopy) override;

    /// Reads the file again in the known codec; the watch is left alone.
    bool reload() override;
    void reset() override;
    bool canSave() const override;
    bool isModified() const override;
    bool isEmpty() const override;

    /// The number of messages, of all types.
    int checkErrors() override;

    /// Empty takes the name away.
    void setFileName(const QString& fileName);
    QString title() const;
    void setTitle(const QString& title);

    /// The bytes that `toFile()` would write.
    QByteArray toData() const;

    /// The text with a line feed at each line end, and nothing else changed.
    QString text() const;

    /// False if the file that was read would not come back byte for byte, line
    /// ends aside, from the codec that it was read in.
    bool isFaithful() const;

    /// True if a line of the file that was read ended otherwise than in a
    /// carriage return and a line feed, so that saving changes it.
    bool hasForeignLineEnds() const;
    /// @}

    /// @name The codec, a number of `TextCodecs`; setting it changes neither text nor file
    /// @{
    int codecId() const;
    void setCodecId(int codec);
    void setCodec(const char* name);
    QString codecName() const;
    /// @}

    /// @name The grammar
    /// @{
    /// Not owned, and must outlive the document or be taken off. Null leaves
    /// plain text.
    void setParser(CodeParser* parser);
    CodeParser* parser() const;

    /// The setting "highlightCode".
    bool hasSyntaxHighlight() const;
    void setSyntaxHighlight(bool highlight);

    /// Releases all nodes and parses every line.
    void reparse();

    /// Parses every line again, keeping nodes that stay the same.
    void rehighlight();

    /// Enables groups beside those that are.
    void enableGroups(std::initializer_list<unsigned> groups);

    /// False while the setting "parseCode" is false; else true for 0 and for
    /// the enabled groups.
    bool groupEnabled(unsigned group) const override;

    /// How a type of token looks, for all documents at once.
    static void setSyntaxFormat(CodeParserSyntax::TokenType type, const QTextCharFormat& format);
    static QTextCharFormat syntaxFormat(CodeParserSyntax::TokenType type);
    /// @}

    /// @name Edits by the tree
    /// @{
    /// Opens and closes a step of undo. With "parseCode", chain and tree follow
    /// each of the operations below at once, colours and messages when the
    /// outermost frame closes. Undo brings the cursor of a view to the first edit.
    /// The step has the first title that is not empty.
    ///
    /// An edit by a `QTextCursor` alone is not seen before that: until then its
    /// lines keep the nodes of their old text or have none, and nodes of lines that
    /// it deleted have no line (`CodeNode::hasLine()`).
    void beginChange(const QString& title) override;
    void endChange() override;

    /// Tells where the open change begins, in front of a first edit that does
    /// not pass through the operations below. Nothing behind the first edit.
    void placeChange(const QTextCursor& edit);
    bool isCodeBeingChanged() const;
    void undo() override;
    void redo() override;
    bool canUndo() const override;
    bool canRedo() const override;
    QString undoTitle() const override;
    QString redoTitle() const override;

    /// A copy of the cursor through which the edits pass.
    QTextCursor cursor() const;

    /// Inserts at the end of the text, or at a cursor.
    void insert(const QString& text);
    void insertOnCursor(const QString& text, QTextCursor& cursor);

    /// Replaces a cursor's selection by a text; as `insertOnCursor()`, nodes
    /// follow at once.
    void replaceSelection(const QString& text, QTextCursor& cursor);

    /// Inserts a line behind or in front of a node: its own line with
    /// `sameLine`, else its whole extent. A null node stands for the end or the
    /// start of the text.
    void insertAfter(const CodeNode* node, const QString& text, bool sameLine);
    void insertBefore(const CodeNode* node, const QString& text, bool sameLine);
    /// @}

    /// @name Nodes and their editors
    /// @{
    /// The node of a block, or null.
    CodeNode* nodeInBlock(const QTextBlock& block) const;

    /// The nearest node above a block: the root if there is none. Logarithmic.
    CodeNode* nodeBefore(const QTextBlock& block) const;

    /// Has the document keep an eye on a node of its own, for who holds on to its
    /// address: nodes die at any keystroke.
    void trackNode(CodeNode* node) const;

    /// True for the address of a tracked node that is still in the chain. The
    /// address itself is not followed. Constant.
    bool isTracked(const CodeNode* node) const;

    /// The nearest block behind (or before) `block` with a message of a type;
    /// invalid if there is none. Logarithmic.
    QTextBlock nextBlockWithMessage(const QTextBlock& block, int type) const;
    QTextBlock previousBlockWithMessage(const QTextBlock& block, int type) const;

    /// The nearest block at or above `block` whose folding level is below `level`;
    /// invalid if there is none. Logarithmic.
    QTextBlock lowerBlockAtOrAbove(const QTextBlock& block, int level) const;

    /// The same strictly below `block`.
    QTextBlock lowerBlockBelow(const QTextBlock& block, int level) const;

    /// What brackets of a line can lack: a partner in the line itself, whatever the
    /// characters are. A line like "a) (b" lacks both.
    enum UnpairedParenthesis { LacksClosing = 1, LacksOpening = 2 };

    /// The nearest block behind (or before) `block` that lacks one of `lacking`, one
    /// or both of `UnpairedParenthesis`; invalid if there is none. Logarithmic.
    QTextBlock nextUnpairedBlock(const QTextBlock& block, int lacking) const;
    QTextBlock previousUnpairedBlock(const QTextBlock& block, int lacking) const;

    /// The editor registered for a type of node and, for groups, a group number.
    CodeDocumentEditor* documentEditor(CodeNode::Type type, unsigned group) const;

    /// Replaces the editor that was registered for the same before. One that is
    /// replaced or unregistered hears of nothing any more and keeps what it
    /// had: release it. The document releases those that are left when it dies,
    /// once each, and takes them off their projects before.
    void registerDocumentEditor(CodeDocumentEditor* editor, CodeNode::Type type, unsigned group);

    /// Removes the first entry of the editor; one call for each registration.
    void unregisterDocumentEditor(CodeDocumentEditor* editor);

    /// Removes every entry of the editor, as it does by itself when it dies.
    void removeDocumentEditor(CodeDocumentEditor* editor);

    /// What an editor keeps with this document, by its name (`Editor::name()`), so that
    /// several can; null if it has kept nothing. The document owns it.
    EditorData* editorData(const QString& editor) const;
    void setEditorData(const QString& editor, std::unique_ptr<EditorData> data);

    CodeDocument* document() const override;
    void insertChild(CodeNode* child, unsigned index) override;
    void removeChild(CodeNode* child) override;
    void childChanged(CodeNode* child) override;
    /// @}

    using QTextDocument::parent;
    using QTextDocument::redo;
    using QTextDocument::undo;
    using RootCode::document;
    using RootCode::parent;

    /// How often the grammar was asked for a line; for tests and benchmarks.
    quint64 parsedLineCount() const;

signals:
    /// A pass over edited lines has ended: tree, messages and folding are true.
    /// Qt is still busy with the edit: as with `contentsChange()`, whoever wants
    /// to edit in answer does it later, by a queued connection. The same holds for
    /// signals of rows that come and go while lines are parsed.
    void codeChanged();

    /// In front of `codeChanged()`: folding levels may have changed from line `first` to
    /// line `last`, and of lines without a class right below the line `above`; -1 for no
    /// such line. Qt is still busy here too.
    void levelsChanged(int first, int last, int above);

    /// The text of a file is about to take the place of this one, and has taken it. Places
    /// in the text are lost between the two.
    void aboutToRead();
    void haveRead();

    /// The document is about to die, and is still whole: views let go of it now.
    void closing();

private:
    friend class CodeNode;
    friend class CodeBlockData;
    friend class CodeDocumentPrivate;
    friend class RootCode;
    std::unique_ptr<CodeDocumentPrivate> d;
};

}  // namespace Zorv
