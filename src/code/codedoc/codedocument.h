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

/// A code file: a text, the root of its node tree, a file of a project, and a watched file, in one
/// object.
///
/// The text is the only source of truth. The host's parser derives the tree from it, line by line,
/// whenever Qt's highlighter processes a line. To change the tree, edit the text. There is one undo
/// history, the one of the text. After every edit, undo and redo, the tree, messages and folding
/// are the same as after a complete parse, but only the affected lines are parsed again.
///
/// Two settings of the document, its project or the host turn parsing on. Both are off by default.
/// Without "parseCode" no group is enabled, not even 0: a parser that checks this creates no nodes
/// and reports nothing, and edits through the tree are not parsed at once. Without "highlightCode"
/// the parser creates nodes but reports nothing.
///
/// The host derives from this class and overrides `release()`, which is both the node's and the
/// file's. The first call must run `destroy()`, the nested call must delete the object. A document
/// also works without a project. Main thread only.
class ZORV_EXPORT CodeDocument : public QTextDocument,
                                 public RootCode,
                                 public ProjectFile,
                                 public FileWatchObject
{
    Q_OBJECT

public:
    /// `tag` is for the parser. The document is empty, has no parser, and its codec is UTF-8.
    explicit CodeDocument(short tag);

    /// Releases the registered editors, then clears the text and releases the remaining nodes.
    ~CodeDocument() override;

    /// A number that the project built on this document stores.
    virtual int projectKind() const = 0;

    /// The folding class of a line, from its text alone: 0 none, 1 head, 2 body. Add 4 for a head
    /// of the outermost level.
    virtual int blockFolding(const QString& line) const = 0;

    /// @name The file
    /// @{
    QString fileName() const override;
    bool fromFile(Archive& archive, const QString& fileName, bool asCopy) override;

    /// The same with a codec number (negative to detect). If `watch` is set, the file watch moves
    /// to the new name.
    bool fromFile(Archive& archive, const QString& fileName, int codec, bool watch,
                  bool asCopy = false);

    /// Uses a text as the content of a file without a name.
    virtual void fromString(const QString& text);

    /// Writes the text in the document's codec, with CR LF at every line end.
    bool toFile(Archive& archive, const QString& fileName, bool asCopy) override;

    /// Reads the file again with the current codec. The watch does not change.
    bool reload() override;
    void reset() override;
    bool canSave() const override;
    bool isModified() const override;
    bool isEmpty() const override;

    /// The number of messages of all types.
    int checkErrors() override;

    /// An empty name removes the name.
    void setFileName(const QString& fileName);
    QString title() const;
    void setTitle(const QString& title);

    /// The bytes that `toFile()` would write.
    QByteArray toData() const;

    /// The text with LF at each line end and otherwise unchanged.
    QString text() const;

    /// False if the codec used for reading would not reproduce the file byte for byte, apart from
    /// line ends.
    bool isFaithful() const;

    /// True if a line of the file did not end with CR LF, so that saving changes it.
    bool hasForeignLineEnds() const;
    /// @}

    /// @name The codec: a number of `TextCodecs`. Setting it changes neither text nor file
    /// @{
    int codecId() const;
    void setCodecId(int codec);
    void setCodec(const char* name);
    QString codecName() const;
    /// @}

    /// @name The parser
    /// @{
    /// Not owned. The parser must outlive the document or be removed first. Null means plain text.
    void setParser(CodeParser* parser);
    CodeParser* parser() const;

    /// The setting "highlightCode".
    bool hasSyntaxHighlight() const;
    void setSyntaxHighlight(bool highlight);

    /// Releases all nodes and parses every line.
    void reparse();

    /// Parses every line again but keeps nodes that do not change.
    void rehighlight();

    /// Enables groups in addition to those already enabled.
    void enableGroups(std::initializer_list<unsigned> groups);

    /// False if the setting "parseCode" is false. Otherwise true for 0 and the enabled groups.
    bool groupEnabled(unsigned group) const override;

    /// The text format for a type of token, shared by all documents.
    static void setSyntaxFormat(CodeParserSyntax::TokenType type, const QTextCharFormat& format);
    static QTextCharFormat syntaxFormat(CodeParserSyntax::TokenType type);
    /// @}

    /// @name Edits through the tree
    /// @{
    /// Start and end an undo step. With "parseCode", chain and tree are updated after each of the
    /// operations below; colours and messages only when the outermost step ends. Undo moves a
    /// view's cursor to the first edit. The title is the first one that is not empty.
    ///
    /// An edit made directly with a `QTextCursor` is only noticed at the end of the step. Until
    /// then its lines have the nodes of their old text or none, and nodes of deleted lines have no
    /// line (`CodeNode::hasLine()`).
    void beginChange(const QString& title) override;
    void endChange() override;

    /// Sets the place where undo will put the cursor. Call it before the first edit of a step, if
    /// that edit does not use the operations below. Does nothing after the first edit.
    void placeChange(const QTextCursor& edit);
    bool isCodeBeingChanged() const;
    void undo() override;
    void redo() override;
    bool canUndo() const override;
    bool canRedo() const override;
    QString undoTitle() const override;
    QString redoTitle() const override;

    /// A copy of the cursor used for edits.
    QTextCursor cursor() const;

    /// Insert at the end of the text, or at a cursor.
    void insert(const QString& text);
    void insertOnCursor(const QString& text, QTextCursor& cursor);

    /// Replaces a cursor's selection. As with `insertOnCursor()`, nodes are updated at once.
    void replaceSelection(const QString& text, QTextCursor& cursor);

    /// Insert a line behind or in front of a node. With `sameLine` this refers to the node's own
    /// line, otherwise to its whole extent. A null node means the end or the start of the text.
    void insertAfter(const CodeNode* node, const QString& text, bool sameLine);
    void insertBefore(const CodeNode* node, const QString& text, bool sameLine);
    /// @}

    /// @name Nodes and their editors
    /// @{
    /// The node of a block; null if there is none.
    CodeNode* nodeInBlock(const QTextBlock& block) const;

    /// The nearest node above a block; the root if there is none. Logarithmic.
    CodeNode* nodeBefore(const QTextBlock& block) const;

    /// Starts tracking a node of this document. Use it before keeping a pointer to a node, because
    /// any keystroke may delete nodes.
    void trackNode(CodeNode* node) const;

    /// True if this is the address of a tracked node that is still in the chain. The pointer is not
    /// dereferenced. Constant time.
    bool isTracked(const CodeNode* node) const;

    /// The nearest block behind (or before) `block` that has a message of a type. Invalid if there
    /// is none. Logarithmic.
    QTextBlock nextBlockWithMessage(const QTextBlock& block, int type) const;
    QTextBlock previousBlockWithMessage(const QTextBlock& block, int type) const;

    /// The nearest block at or above `block` with a folding level below `level`. Invalid if there
    /// is none. Logarithmic.
    QTextBlock lowerBlockAtOrAbove(const QTextBlock& block, int level) const;

    /// The same, but strictly below `block`.
    QTextBlock lowerBlockBelow(const QTextBlock& block, int level) const;

    /// What the brackets of a line may lack: a partner in the same line, of any kind of bracket. A
    /// line like "a) (b" lacks both.
    enum UnpairedParenthesis { LacksClosing = 1, LacksOpening = 2 };

    /// The nearest block behind (or before) `block` with at least one of `lacking`, a combination
    /// of `UnpairedParenthesis`. Invalid if there is none. Logarithmic.
    QTextBlock nextUnpairedBlock(const QTextBlock& block, int lacking) const;
    QTextBlock previousUnpairedBlock(const QTextBlock& block, int lacking) const;

    /// The editor registered for a type of node and, for groups, a group number.
    CodeDocumentEditor* documentEditor(CodeNode::Type type, unsigned group) const;

    /// Registers an editor and replaces the previous one. A replaced or unregistered editor gets no
    /// more calls and keeps its content; the caller must release it. When the document is
    /// destroyed, it removes the remaining editors from their projects and releases each one once.
    void registerDocumentEditor(CodeDocumentEditor* editor, CodeNode::Type type, unsigned group);

    /// Removes the first registration of the editor. Call it once per registration.
    void unregisterDocumentEditor(CodeDocumentEditor* editor);

    /// Removes all registrations of the editor. An editor does this itself when it is destroyed.
    void removeDocumentEditor(CodeDocumentEditor* editor);

    /// Data that an editor stores with this document, by the name of the editor (`Editor::name()`).
    /// Null if there is none. The document owns it.
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

    /// How often the parser was called for a line. For tests and benchmarks.
    quint64 parsedLineCount() const;

signals:
    /// Edited lines have been processed: tree, messages and folding are up to date. Qt has not
    /// finished the edit yet. So, as with `contentsChange()`, do not edit the text in a slot; use a
    /// queued connection. The same applies to row signals emitted while lines are parsed.
    void codeChanged();

    /// Emitted before `codeChanged()`. Folding levels may have changed from line `first` to line
    /// `last`, and in the lines without a class directly below the line `above`; -1 if there is no
    /// such line. Qt has not finished the edit here either.
    void levelsChanged(int first, int last, int above);

    /// The text of a file is about to replace this text, or has replaced it. Positions in the text
    /// are lost in between.
    void aboutToRead();
    void haveRead();

    /// The document is about to be destroyed but is still complete: views must let go of it now.
    void closing();

private:
    friend class CodeNode;
    friend class CodeBlockData;
    friend class CodeDocumentPrivate;
    friend class RootCode;
    std::unique_ptr<CodeDocumentPrivate> d;
};

}  // namespace Zorv
