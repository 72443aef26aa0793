#pragma once

#include "editors/framework/fileeditor.h"

#include <memory>

class QModelIndex;
class QPoint;
class QTreeView;

namespace Zorv {

class CodeDocument;
class CodeFileEditorPrivate;
class CodeItemModel;
class CodeWorkspace;

/// The editor for any file that is shown as text in the code workspace.
///
/// While it is active it connects one `CodeDocument` to the workspace's `CodeEditor`: find and
/// replace, position and error count in the status bar, and a tree of the document's nodes that
/// follows the cursor. Derived editors add a name, areas and an action, and connect what they have
/// beside the text in `attach()` and `detach()`.
///
/// Several editors can share a document in the same workspace. An editor that is deactivated while
/// another one with that document takes over, or already has, leaves the text alone: cursor,
/// selection, view and focus stay. Main thread only.
class ZORV_EXPORT CodeFileEditor : public FileEditor
{
    Q_OBJECT

public:
    /// Publishes a tree under `treeName` and shows `model` in it. The host keeps the workspace,
    /// which outlives the editor; the editor takes over the model. Without a model or a name no
    /// tree is published. `tree()` is null then, and if the host creates none.
    CodeFileEditor(CodeWorkspace* workspace, CodeItemModel* model, const char* treeName,
                   QObject* parent = nullptr);
    ~CodeFileEditor() override;

    /// The document to edit, null for none; not owned. An active editor shows it at once in place
    /// of the old one. If the document dies, the editor drops it.
    virtual void setDocument(CodeDocument* document);
    CodeDocument* document() const;

    /// The workspace from the constructor. An editor that shows more than text can use another one
    /// as its `workspace()`.
    CodeWorkspace* codeWorkspace() const;
    Workspace* workspace() const override;

    /// Null for none. The editor owns the model, the host the tree.
    CodeItemModel* model() const;
    QTreeView* tree() const;

    /// Uses the tree of another editor of the same workspace instead of its own, so the tree stays
    /// unchanged when one editor takes over from the other. Call it before the editor is activated.
    /// The other editor must outlive this one.
    void shareTree(CodeFileEditor* owner);

    /// Asks the host to bring the editor to the front, which deactivates the previous one. Then
    /// connects document and workspace, and shows the workspace. The host may call this function
    /// again from there, but need not. Does nothing while the editor is active.
    void activate() override;
    void deactivate() override;

    /// Moves the cursor to `line` and `column`, from 0, in the middle of the view.
    void navigateTo(const QString& name, unsigned a, unsigned line, unsigned column) override;

    /// Undo and redo move the cursor to the change.
    void undo() override;
    void redo() override;

    /// Searches from the selection on, once around the whole document. Unfolds and selects the
    /// match. If there is none, or the expression does not compile, the user gets a message and the
    /// cursor stays where the second round began. Does nothing for an empty text or while the
    /// editor is inactive. `flags` are bits of `FindFlag`.
    void find(const QString& text, unsigned flags) override;

    /// Replaces the selection if it is a match, and moves on to the next match. With `all`,
    /// replaces every match in one undo step; without a match the whole text is replaced by itself,
    /// which is an undo step too. In `with`, \1 to \99 are the captured groups of an expression.
    void replace(const QString& text, const QString& with, unsigned flags, bool all) override;

    void selectAll() override;
    ProjectFile* file() const override;
    void cut() override;
    void copy() override;
    void paste() override;

public slots:
    /// The cursor has moved to line x and column y: shows position and errors in the fields 0 and 1
    /// of the status bar.
    virtual void cursorChanged(QPoint place);

    /// The cursor has moved to another line, from 0: the tree selects its node. The setting
    /// "auto_expand_tree" also collapses all other branches.
    virtual void currLineChanged(int line);

    /// The user chose a node in the tree: the cursor moves there. Does nothing while this editor,
    /// and any editor that shares its tree, is inactive.
    void selectedItem(const QModelIndex& index);

protected:
    /// Connect the document to the workspace, and disconnect it. Called once for each activation
    /// and deactivation, and around a change of document while active. `document()` may be null.
    /// Overrides call the base first in `attach()`, last in `detach()`.
    virtual void attach();
    virtual void detach();

private:
    friend class CodeFileEditorPrivate;
    std::unique_ptr<CodeFileEditorPrivate> d;
};

}  // namespace Zorv
