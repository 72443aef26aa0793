#include "editors/code/codefileeditor.h"

#include "code/codedoc/codedocument.h"
#include "core/dialogs/dialogs.h"
#include "core/interface.h"
#include "core/messages.h"
#include "editors/code/codeeditor.h"
#include "editors/code/codefileeditor_p.h"
#include "editors/code/codefind.h"
#include "editors/code/codeitemmodel.h"
#include "editors/code/codeworkspace.h"
#include "editors/framework/widgetcontrol.h"

#include <QScopedValueRollback>

#include <climits>

namespace Zorv {

namespace {

constexpr int TreeRows = 11;
constexpr unsigned FindTitle = 8;

enum StatusField { PlaceField = 0, ErrorField = 1 };

}  // namespace

CodeEditor* CodeFileEditorPrivate::editor() const
{
    CodeEditor* shown = workspace->editor();
    return document && shown->codeDocument() == document ? shown : nullptr;
}

bool CodeFileEditorPrivate::findFrom(const CodeFind& what, bool backward)
{
    const QTextCursor cursor = editor()->textCursor();
    const CodeFind::Match match =
        backward ? what.previous(text.text(), qMax(cursor.selectionStart() - 1, 0))
                 : what.next(text.text(), cursor.selectionEnd());
    if (match.hasMatch()) {
        CodeFind::select(editor(), match.capturedStart(), match.capturedLength(), backward);
    }
    return match.hasMatch();
}

CodeFileEditor* CodeFileEditorPrivate::follower() const
{
    auto* next = qobject_cast<CodeFileEditor*>(Interface::instance()->currentEditor());
    const bool isSame = next && next != q && document && next->d->document == document &&
                        next->d->workspace == workspace;
    return isSame ? next : nullptr;
}

/// Leaves model and tree alone if they already show the document.
void CodeFileEditorPrivate::joinTree(CodeDocument* shown, bool isJoined)
{
    if (model && model->document() != shown) {
        model->setDocument(shown);
    }
    CodeItemModel* const wanted = isJoined ? model : nullptr;
    if (!tree || tree->model() == wanted) {
        return;
    }
    // A view creates a new selection model for each model, but does not delete the old one.
    const QItemSelectionModel* selection = tree->selectionModel();
    tree->setModel(wanted);
    if (selection != tree->selectionModel()) {
        delete selection;
    }
}

void CodeFileEditorPrivate::replaceSelection(const CodeFind& what, const QString& with)
{
    const QTextCursor cursor = editor()->textCursor();
    const int start = cursor.selectionStart();
    const CodeFind::Match match = what.matchOf(text.text(), start, cursor.selectionEnd() - start);
    if (match.hasMatch()) {
        what.replaceSelection(editor(), match, with);
    }
}

void CodeFileEditorPrivate::replaceAll(const CodeFind& what, const QString& with)
{
    if (what.replaceAll(editor(), text.text(), with) == 0) {
        // Replace the text by itself: this still adds an undo step.
        const QString whole = document->text();
        QTextCursor cursor(document);
        cursor.select(QTextCursor::Document);
        cursor.insertText(whole);
    }
}

CodeFileEditor::CodeFileEditor(CodeWorkspace* workspace, CodeItemModel* model, const char* treeName,
                               QObject* parent)
    : FileEditor(parent), d(std::make_unique<CodeFileEditorPrivate>())
{
    d->q = this;
    d->treeOwner = this;
    d->workspace = workspace;
    d->model = model;
    if (model) {
        model->setParent(this);
    }
    const QLatin1String name(treeName);
    if (!model || name.isEmpty()) {
        return;
    }
    const WidgetControl control(WidgetControl::TreeView, TreeRows, this,
                                SLOT(selectedItem(QModelIndex)), nullptr, nullptr,
                                WidgetControl::SingleClick);
    d->tree = qobject_cast<QTreeView*>(host()->addControl(name, control));
}

CodeFileEditor::~CodeFileEditor() = default;

void CodeFileEditor::setDocument(CodeDocument* document)
{
    if (document == d->document) {
        return;
    }
    if (isActive()) {
        detach();
    }
    d->document = document;
    if (isActive()) {
        attach();
    }
}

CodeDocument* CodeFileEditor::document() const
{
    return d->document;
}

CodeWorkspace* CodeFileEditor::codeWorkspace() const
{
    return d->workspace;
}

Workspace* CodeFileEditor::workspace() const
{
    return d->workspace;
}

CodeItemModel* CodeFileEditor::model() const
{
    return d->model;
}

QTreeView* CodeFileEditor::tree() const
{
    return d->tree;
}

void CodeFileEditor::shareTree(CodeFileEditor* owner)
{
    d->treeOwner = owner ? owner->d->treeOwner : this;
}

void CodeFileEditor::activate()
{
    if (isActive()) {
        return;
    }
    // The host calls activate() again from here. The inner call does the work below, and this one
    // returns.
    if (!d->isAsking) {
        const QScopedValueRollback<bool> asking(d->isAsking, true);
        host()->activateEditor(this);
        if (isActive()) {
            return;
        }
    }
    FileEditor::activate();
    attach();
    host()->showWorkspace(workspace());
}

void CodeFileEditor::deactivate()
{
    if (isActive()) {
        FileEditor::deactivate();
        detach();
    }
}

void CodeFileEditor::attach()
{
    const CodeEditor* editor = d->workspace->editor();
    CodeFileEditorPrivate* const nodes = d->treeOwner->d.get();
    if (CodeDocument* document = d->document) {
        d->connections << connect(document, &QTextDocument::modificationChanged, this,
                                  &CodeFileEditor::contentsChanged);
        if (nodes->model) {
            d->connections << connect(document, &QTextDocument::contentsChanged, nodes->model,
                                      &CodeItemModel::update);
        }
        d->connections << connect(document, &CodeDocument::closing, this, [this] {
            deactivate();
            d->document = nullptr;
        });
    }
    d->connections << connect(editor, &CodeEditor::currentLineChanged, this,
                              &CodeFileEditor::currLineChanged);
    d->connections << connect(editor, &CodeEditor::cursorChanged, this,
                              &CodeFileEditor::cursorChanged);
    d->text.setDocument(d->document);
    if (editor->codeDocument() != d->document) {
        d->workspace->setDocument(d->document);
    }
    nodes->joinTree(d->document, true);
}

void CodeFileEditor::detach()
{
    for (const QMetaObject::Connection& connection : qAsConst(d->connections)) {
        disconnect(connection);
    }
    d->connections.clear();
    d->text.setDocument(nullptr);
    const CodeFileEditor* const next = d->follower();
    // Another editor may already show its own document.
    if (d->editor() && !next) {
        d->workspace->setDocument(nullptr);
    }
    if (!next || next->d->treeOwner != d->treeOwner) {
        d->treeOwner->d->joinTree(nullptr, false);
    }
}

void CodeFileEditor::navigateTo(const QString&, unsigned, unsigned line, unsigned column)
{
    CodeEditor* editor = d->workspace->editor();
    editor->setCurrentLine(line, CodeEditor::CenterLine);
    QTextCursor cursor = editor->textCursor();
    cursor.movePosition(QTextCursor::NextCharacter, QTextCursor::MoveAnchor,
                        int(qMin(column, unsigned(INT_MAX))));
    editor->setTextCursor(cursor);
}

void CodeFileEditor::undo()
{
    if (CodeEditor* editor = d->editor()) {
        editor->undo();
    } else {
        FileEditor::undo();
    }
}

void CodeFileEditor::redo()
{
    if (CodeEditor* editor = d->editor()) {
        editor->redo();
    } else {
        FileEditor::redo();
    }
}

void CodeFileEditor::find(const QString& text, unsigned flags)
{
    CodeEditor* editor = d->editor();
    if (text.isEmpty() || !editor) {
        return;
    }
    const CodeFind what(text, flags);
    const bool backward = (flags & FindBackward) != 0;
    if (d->findFrom(what, backward)) {
        return;
    }
    QTextCursor cursor = editor->textCursor();
    cursor.movePosition(backward ? QTextCursor::End : QTextCursor::Start);
    editor->setTextCursor(cursor);
    if (!d->findFrom(what, backward)) {
        Dialogs::instance()->information(host()->text(FindTitle), tr("No text found!"));
    }
}

void CodeFileEditor::replace(const QString& text, const QString& with, unsigned flags, bool all)
{
    CodeEditor* editor = d->editor();
    if (text.isEmpty() || !editor || editor->isReadOnly()) {
        return;
    }
    const CodeFind what(text, flags);
    if (all) {
        d->replaceAll(what, with);
    } else {
        d->replaceSelection(what, with);
        find(text, flags);
    }
}

void CodeFileEditor::selectAll()
{
    d->workspace->editor()->selectAll();
}

ProjectFile* CodeFileEditor::file() const
{
    return d->document;
}

void CodeFileEditor::cut()
{
    d->workspace->editor()->cut();
}

void CodeFileEditor::copy()
{
    d->workspace->editor()->copy();
}

void CodeFileEditor::paste()
{
    d->workspace->editor()->paste();
}

void CodeFileEditor::cursorChanged(QPoint place)
{
    const CodeDocument* document = d->workspace->editor()->codeDocument();
    if (!document) {
        return;
    }
    host()->showStatus(PlaceField,
                       tr("Line: %1, Column: %2, Line count: %3")
                           .arg(QString::number(place.x() + 1), QString::number(place.y() + 1),
                                QString::number(document->blockCount())));
    host()->showStatus(
        ErrorField, tr("Syntax error count: %1").arg(document->messages()->count(Message::Error)));
}

void CodeFileEditor::currLineChanged(int line)
{
    if (d->treeOwner != this) {
        d->treeOwner->currLineChanged(line);
        return;
    }
    if (!d->model || !d->tree) {
        return;
    }
    if (host()->option(QStringLiteral("auto_expand_tree")).toBool()) {
        d->tree->collapseAll();
    }
    // While documents are being switched, the tree has no model.
    QItemSelectionModel* selection = d->tree->selectionModel();
    if (!selection || d->tree->model() != d->model) {
        return;
    }
    const QModelIndex index = d->model->indexInLine(unsigned(line));
    if (!index.isValid()) {
        selection->clearSelection();
        return;
    }
    selection->setCurrentIndex(index, QItemSelectionModel::ClearAndSelect);
    d->tree->expand(index);
    d->tree->scrollTo(index);
}

void CodeFileEditor::selectedItem(const QModelIndex& index)
{
    const auto* user = qobject_cast<const CodeFileEditor*>(host()->currentEditor());
    const bool isShared = user && user->isActive() && user->d->treeOwner == this;
    const int line = (isActive() || isShared) && d->model ? d->model->lineNo(index) : -1;
    if (line >= 0) {
        CodeEditor* editor = d->workspace->editor();
        editor->setCurrentLine(unsigned(line), CodeEditor::TopLine);
        editor->setFocus();
    }
}

}  // namespace Zorv
