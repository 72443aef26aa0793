#include "editors/code/codefileeditor.h"

#include "code/codedoc/codedocument.h"
#include "core/interface.h"
#include "editors/code/codeeditor.h"
#include "editors/code/codefileeditor_p.h"
#include "editors/code/codeitemmodel.h"
#include "editors/code/codeworkspace.h"
#include "editors/framework/widgetcontrol.h"

namespace Zorv {

namespace {

constexpr int TreeRows = 11;

}  // namespace

CodeFileEditor::CodeFileEditor(CodeWorkspace* workspace, CodeItemModel* model,
                               const char* treeName, QObject* parent)
    : FileEditor(parent), d(std::make_unique<CodeFileEditorPrivate>())
{
    d->workspace = workspace;
    d->model = model;
    if (model) {
        model->setParent(this);
    }
    const WidgetControl control(WidgetControl::TreeView, TreeRows, this,
                                SLOT(selectedItem(QModelIndex)), nullptr, nullptr,
                                WidgetControl::SingleClick);
    d->tree = qobject_cast<QTreeView*>(host()->addControl(QLatin1String(treeName), control));
}

CodeFileEditor::~CodeFileEditor() = default;

void CodeFileEditor::setDocument(CodeDocument* document)
{
    d->document = document;
}

CodeDocument* CodeFileEditor::document() const
{
    return d->document;
}

CodeWorkspace* CodeFileEditor::workspace() const
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

void CodeFileEditor::activate()
{
    FileEditor::activate();
    CodeEditor* editor = d->workspace->editor();
    if (d->document) {
        connect(d->document, &QTextDocument::modificationChanged, this,
                &CodeFileEditor::contentsChanged);
        connect(d->document, &CodeDocument::closing, this, [this] {
            deactivate();
            d->document = nullptr;
        });
    }
    if (d->document && d->model) {
        connect(d->document, &QTextDocument::contentsChanged, d->model, &CodeItemModel::update);
    }
    connect(editor, &CodeEditor::currentLineChanged, this, &CodeFileEditor::currLineChanged);
    connect(editor, &CodeEditor::cursorChanged, this, &CodeFileEditor::cursorChanged);
    d->workspace->setDocument(d->document);
    host()->activateEditor(this);
    if (d->model) {
        d->model->setDocument(d->document);
    }
    if (d->tree) {
        d->tree->setModel(d->model);
    }
}

void CodeFileEditor::deactivate()
{
    FileEditor::deactivate();
    d->workspace->editor()->disconnect(this);
    if (d->document) {
        d->document->disconnect(this);
        d->document->disconnect(d->model);
    }
    d->workspace->setDocument(nullptr);
    if (d->model) {
        d->model->setDocument(nullptr);
    }
    if (d->tree) {
        d->tree->setModel(nullptr);
    }
}

void CodeFileEditor::navigateTo(const QString&, unsigned, unsigned line, unsigned column)
{
    CodeEditor* editor = d->workspace->editor();
    editor->setCurrentLine(line, CodeEditor::CenterLine);
    QTextCursor cursor = editor->textCursor();
    cursor.movePosition(QTextCursor::NextCharacter, QTextCursor::MoveAnchor, int(column));
    editor->setTextCursor(cursor);
}

void CodeFileEditor::undo()
{
    d->workspace->editor()->undo();
}

void CodeFileEditor::redo()
{
    d->workspace->editor()->redo();
}

void CodeFileEditor::find(const QString&, unsigned) {}

void CodeFileEditor::replace(const QString&, const QString&, unsigned, bool) {}

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

void CodeFileEditor::cursorChanged(QPoint) {}

void CodeFileEditor::currLineChanged(int) {}

void CodeFileEditor::selectedItem(const QModelIndex&) {}

}  // namespace Zorv
