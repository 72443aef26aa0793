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

/// The editor of any file that is shown as text in the code workspace.
///
/// While it is active it joins one `CodeDocument` to the one `CodeEditor` of the
/// workspace: find and replace, place and number of errors in the status bar, and
/// a tree of the document's nodes that follows the cursor. Derived editors give
/// it a name, areas and an action, and join what they have beside the text in
/// `attach()` and `detach()`.
///
/// Several editors can have the same document in the same workspace. One that goes
/// while such another one comes forward, or has come, leaves the text as it is:
/// cursor, selection, view and focus stay. Main thread only.
class ZORV_EXPORT CodeFileEditor : public FileEditor
{
    Q_OBJECT

public:
    /// Publishes a tree under `treeName` and shows `model` in it. The workspace
    /// stays the host's and outlives the editor; the model is the editor's from now
    /// on. Without a model or a name none is published; without one, or with a host
    /// that makes no tree, the editor has none.
    CodeFileEditor(CodeWorkspace* workspace, CodeItemModel* model, const char* treeName,
                   QObject* parent = nullptr);
    ~CodeFileEditor() override;

    /// The document to work on, null for none; not owned. An active editor shows it at
    /// once in place of the one before. A document that dies is let go of.
    virtual void setDocument(CodeDocument* document);
    CodeDocument* document() const;

    /// The workspace of the constructor, which an editor that shows more than text need
    /// not be shown in.
    CodeWorkspace* codeWorkspace() const;
    Workspace* workspace() const override;

    /// Null for none; the editor's, and the host's.
    CodeItemModel* model() const;
    QTreeView* tree() const;

    /// Shows the nodes in the tree of another editor, of the same workspace, in place of one
    /// of its own: what stands there stays when one of them comes forward after the other.
    /// To be called before the editor is activated; the other one outlives it.
    void shareTree(CodeFileEditor* owner);

    /// Asks the host to bring the editor forward, which puts the one before away, and then
    /// joins document and workspace and has the workspace shown. The host may call it again
    /// from there, or leave it at that. Nothing while the editor is active.
    void activate() override;
    void deactivate() override;

    /// Puts the cursor at `line` and `column`, from 0, in the middle of the view.
    void navigateTo(const QString& name, unsigned a, unsigned line, unsigned column) override;

    /// Undo and redo take the cursor along.
    void undo() override;
    void redo() override;

    /// Looks for a text from the selection on, once around the whole document, and
    /// selects what it finds, unfolded. If there is nothing, as for an expression that
    /// does not compile, the person is told, and the cursor stands where the second
    /// round began. Nothing for an empty text and while the editor is inactive.
    /// `flags` are bits of `FindFlag`.
    void find(const QString& text, unsigned flags) override;

    /// Replaces the selection if it is a match, and goes on to the next one; with
    /// `all` every match, as one step of undo. Without a match the whole text takes its
    /// own place, which is such a step too. In `with` \1 to \99 are what the groups of
    /// an expression have captured.
    void replace(const QString& text, const QString& with, unsigned flags, bool all) override;

    void selectAll() override;
    ProjectFile* file() const override;
    void cut() override;
    void copy() override;
    void paste() override;

public slots:
    /// The cursor has moved, to line x and column y: shows place and errors in the
    /// fields 0 and 1 of the status bar.
    virtual void cursorChanged(QPoint place);

    /// The cursor has come to another line, from 0: the tree selects its node. With
    /// the setting "auto_expand_tree" all other branches close.
    virtual void currLineChanged(int line);

    /// The person has chosen a node in the tree: the cursor goes there. Nothing while
    /// the editor, and whichever shares its tree, is inactive.
    void selectedItem(const QModelIndex& index);

protected:
    /// Join the document to the workspace and part them, once for each time that the editor
    /// comes forward and goes, and around another document while it is active. `document()`
    /// may be null. A derived one calls these first in `attach()`, last in `detach()`.
    virtual void attach();
    virtual void detach();

private:
    friend class CodeFileEditorPrivate;
    std::unique_ptr<CodeFileEditorPrivate> d;
};

}  // namespace Zorv
