#include "app/code/codeview.h"

#include "app/actions/actionregistry.h"
#include "app/code/codehelp.h"
#include "app/code/codetexteditor.h"
#include "app/code/documenttabs.h"
#include "app/code/encodingchoice.h"
#include "app/find/findbar.h"
#include "app/session/gamesession.h"
#include "app/session/unsavedwork.h"
#include "app/window/editorregistry.h"
#include "app/window/filesaving.h"
#include "app/window/jumps.h"
#include "app/window/partlist.h"
#include "app/window/statusfields.h"
#include "app/window/texteditor.h"
#include "app/window/windowservices.h"
#include "family/familydocument.h"
#include "family/project/familyproject.h"
#include "operations/documentfile.h"

#include <zorv/core/fileid.h>
#include <zorv/editors/code/codeeditor.h>
#include <zorv/editors/code/codeworkspace.h>

#include <QFileInfo>
#include <QSplitter>
#include <QTimer>
#include <QToolBar>
#include <QTreeView>
#include <QVBoxLayout>
#include <algorithm>

// One code workspace shows all texts. The text editors (`TextEditor`) share it: each gets every
// text, and the last one added that wants the text is activated. This is decided when a text comes
// to the front, and again after each change (`updateState()`), because an edit can give a text its
// first animation.
//
// Cursor moves are reported at once (`followCursor`), and once more when the cursor has come to
// rest (`followRest`).

namespace App {

using Family::FamilyDocument;
using Zorv::CodeEditor;

namespace {

/// All file kinds that are texts.
constexpr Zorv::FileID TextFiles{~(quint32(Zorv::FileID::Sprites) | Zorv::FileID::Sounds)};

JumpServices jumpServices(const WindowServices& services)
{
    return {[jumps = services.jumps](FamilyDocument* document, int line, int column) {
                jumps->showPlace(document, line, column, 0);
            },
            [jumps = services.jumps](const QString& file) { return jumps->openFile(file); },
            [jumps = services.jumps](int row) { jumps->showSound(row); },
            [status = services.status](const QString& text) { status->showPassing(text); }};
}

}  // namespace

CodeView::CodeView(const WindowServices& services, QSplitter* page)
    : QObject(services.window), m_services(services), m_widget(new QWidget),
      m_workspace(new Zorv::CodeWorkspace(this)),
      m_textEditor(new CodeTextEditor(m_workspace, this)), m_editors{m_textEditor},
      m_tabs(new DocumentTabs(m_workspace)), m_findBar(new FindBar(m_workspace->editor())),
      m_help(new CodeHelp(m_workspace->editor(), jumpServices(services)))
{
    auto* layout = new QVBoxLayout(m_widget);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_workspace->widget());
    layout->addWidget(m_findBar);
    page->addWidget(m_widget);
    services.editors->add(m_textEditor, TextFiles, {page, commands()});
    m_workspace->widget()->setFocusProxy(editor());
    m_workspace->engineSwitched(true);
    setUpEditor();
    reconfig();
    connect(m_tabs, &DocumentTabs::currentDocumentChanged, this, &CodeView::showFront);
    connect(m_tabs, &DocumentTabs::closeRequested, this, &CodeView::close);
    connect(m_tabs, &DocumentTabs::stateChanged, services.parts, &PartList::update);
    connect(services.status, &StatusFields::encodingClicked, this, &CodeView::changeEncoding);
    connect(services.status, &StatusFields::placeClicked, m_workspace,
            &Zorv::CodeWorkspace::goToLine);
}

// The editor must release its document and workspace while both still exist.
CodeView::~CodeView()
{
    m_tabs->blockSignals(true);
    delete m_findBar;
    m_textEditor->setText(nullptr);
    delete m_textEditor;
    delete m_workspace;
}

void CodeView::setUpEditor()
{
    CodeEditor* text = editor();
    text->setLineWrapMode(QPlainTextEdit::NoWrap);
    connect(text, &QPlainTextEdit::cursorPositionChanged, this, [this] {
        if (editorInFront()) {
            cursorMoved();
        }
    });
    connect(text, &CodeEditor::currentLineChanged, this, [this](int line) {
        if (editorInFront()) {
            m_services.parts->followLine(line);
        }
    });
    for (const auto signal : {&QPlainTextEdit::copyAvailable, &QPlainTextEdit::undoAvailable,
                              &QPlainTextEdit::redoAvailable}) {
        connect(text, signal, m_services.parts, &PartList::update);
    }
}

QVector<ActionRow> CodeView::actions()
{
    const Members<CodeView> on(this);
    const Members<CodeEditor> editing(editor());
    const Members<CodeHelp> help(m_help);
    const Members<FindBar> bar(m_findBar);
    const auto hasText = on(&CodeView::hasText);
    using K = QKeySequence;
    // clang-format off
    return {
        {"close_text",      "file.text",  QT_TRANSLATE_NOOP("App::Actions", "&Close text"),       K::Close,                    on(&CodeView::closeText),            hasText},
        {"find_selection",  "edit.find",  QT_TRANSLATE_NOOP("App::Actions", "Find &selection"),   "Ctrl+F3",                   bar(&FindBar::findSelection),        hasText, "code"},
        {"replace",         "edit.find",  QT_TRANSLATE_NOOP("App::Actions", "Rep&lace..."),       "Ctrl+H",                    bar(&FindBar::openReplace),          hasText, "code"},
        {"encoding",        "edit.text",  QT_TRANSLATE_NOOP("App::Actions", "&Encoding..."),      {},                          on(&CodeView::changeEncoding),       hasText, "code"},
        {"code_complete",   "code.write", QT_TRANSLATE_NOOP("App::Actions", "Co&mplete word"),    "Ctrl+Space",                help(&CodeHelp::completeWord),       hasText, "code"},
        {"code_definition", "code.write", QT_TRANSLATE_NOOP("App::Actions", "&Go to definition"), "F12",                       help(&CodeHelp::goToDefinition),     hasText, "code"},
        {"code_back",       "code.write", QT_TRANSLATE_NOOP("App::Actions", "Go &back"),          "Alt+Left",                  help(&CodeHelp::goBack),             on(&CodeView::hasTexts)},
        {"code_line_up",    "code.write", QT_TRANSLATE_NOOP("App::Actions", "Move line &up"),     "Alt+Up",                    editing(&CodeEditor::moveLinesUp),   hasText, "code"},
        {"code_line_down",  "code.write", QT_TRANSLATE_NOOP("App::Actions", "Move line do&wn"),   "Alt+Down",                  editing(&CodeEditor::moveLinesDown), hasText, "code"},
        {"code_fold",       "code.write", QT_TRANSLATE_NOOP("App::Actions", "&Fold or unfold"),   "Alt+Shift+Up",              editing(&CodeEditor::toggleFold),    hasText, "code"},
        {"next_text",       "view.texts", QT_TRANSLATE_NOOP("App::Actions", "Next te&xt"),        "Ctrl+PgDown; Ctrl+Tab",     on(&CodeView::showNext),             hasText},
        {"previous_text",   "view.texts", QT_TRANSLATE_NOOP("App::Actions", "Previous t&ext"),    "Ctrl+PgUp; Ctrl+Shift+Tab", on(&CodeView::showPrevious),         hasText},
    };
    // clang-format on
}

CommandRows CodeView::commands()
{
    const Members<CodeView> on(this);
    const Members<FindBar> bar(m_findBar);
    const auto hasText = on(&CodeView::hasText);
    const auto hasSelection = on(&CodeView::hasSelection);
    return {
        {Command::Save, on(&CodeView::save), hasText},
        {Command::Cut, [this] { m_textEditor->cut(); }, hasSelection},
        {Command::Copy, [this] { m_textEditor->copy(); }, hasSelection},
        {Command::Delete, [this] { editor()->textCursor().removeSelectedText(); }, hasSelection},
        {Command::Find, bar(&FindBar::openFind), hasText},
        {Command::FindNext, bar(&FindBar::findNext), hasText},
        {Command::FindPrevious, bar(&FindBar::findPrevious), hasText},
        {Command::ZoomIn, [this] { m_workspace->zoomIn(); }},
        {Command::ZoomOut, [this] { m_workspace->zoomOut(); }},
        {Command::ZoomActual, [this] { m_workspace->zoomActual(); }}};
}

void CodeView::actionsMade()
{
    for (const char* name : {"find", "find_next", "find_previous", "find_selection", "replace"}) {
        m_findBar->addAction(m_services.actions->action(QLatin1String(name)));
    }
}

CodeEditor* CodeView::editor() const
{
    return m_workspace->editor();
}

void CodeView::reconfig()
{
    CodeEditor::SyntaxFormatting formatting = editor()->syntaxFormatting();
    formatting.markArea = true;
    editor()->setSyntaxFormatting(formatting);
}

void CodeView::addEditor(TextEditor* editor)
{
    m_editors.append(editor);
}

TextEditor* CodeView::editorInFront() const
{
    const auto found = std::find_if(m_editors.begin(), m_editors.end(), [](TextEditor* each) {
        return each->fileEditor()->isActive();
    });
    return found == m_editors.end() ? nullptr : *found;
}

/// The last editor added that wants the document.
TextEditor* CodeView::editorFor(const FamilyDocument* document) const
{
    return *std::find_if(m_editors.rbegin(), m_editors.rend(),
                         [document](TextEditor* each) { return each->wants(document); });
}

/// Chooses the right editor first, or another one would flash up for a moment.
void CodeView::bringForward(FamilyDocument* document)
{
    if (document) {
        TextEditor* first = editorFor(document);
        first->setText(document);
        first->fileEditor()->activate();
    }
    for (TextEditor* each : qAsConst(m_editors)) {
        each->setText(document);
    }
}

void CodeView::updateState()
{
    const TextEditor* front = editorInFront();
    TextEditor* wanted = editorFor(m_tabs->currentDocument());
    if (front && front != wanted) {
        wanted->fileEditor()->activate();
    }
}

void CodeView::showFront(FamilyDocument* document)
{
    bringForward(document);
    m_findBar->follow();
    m_services.parts->showDocument(document);
    if (document) {
        cursorMoved();
        m_services.parts->followLine(editor()->textCursor().blockNumber());
    }
}

void CodeView::cursorMoved()
{
    m_services.parts->followCursor(editor()->textCursor().blockNumber());
    if (!m_isRestPending) {
        m_isRestPending = true;
        QTimer::singleShot(0, this, &CodeView::cursorRests);
    }
}

void CodeView::cursorRests()
{
    m_isRestPending = false;
    if (m_tabs->currentDocument()) {
        m_services.parts->followRest(editor()->textCursor().blockNumber());
    }
}

void CodeView::openText(FamilyDocument* document)
{
    const bool isNew = m_tabs->indexOf(document) < 0;
    m_tabs->showDocument(document);
    editorFor(document)->fileEditor()->activate();
    editor()->setFocus();
    if (isNew) {
        Operations::ensureFaithful(document);
        m_services.status->updateFile();
    }
}

void CodeView::showPlace(FamilyDocument* document, int line, int column, int length)
{
    if (document) {
        openText(document);
        m_textEditor->goTo(line, column, length);
    }
}

void CodeView::moveCursor(int line)
{
    CodeEditor* edit = m_tabs->currentEdit();
    if (edit && edit->textCursor().blockNumber() != line) {
        edit->setTextCursor(QTextCursor(edit->document()->findBlockByNumber(line)));
    }
}

void CodeView::forgetProject(Family::FamilyProject* project)
{
    const QList<FamilyDocument*> documents = project->documents();
    for (const FamilyDocument* document : documents) {
        m_tabs->closeDocument(document);
    }
}

void CodeView::gameChanged()
{
    m_tabs->updateTabs();
}

QVector<PanelPlace> CodeView::places()
{
    return {PanelPlace::inside(m_workspace->toolBar()), PanelPlace::of(m_tabs->currentEdit()),
            PanelPlace::inside(m_findBar), PanelPlace::of(m_textEditor->tree())};
}

bool CodeView::hasText() const
{
    return m_tabs->currentEdit();
}

/// True also while another editor is in front.
bool CodeView::hasTexts() const
{
    return m_tabs->count() > 0;
}

bool CodeView::hasSelection() const
{
    const CodeEditor* edit = m_tabs->currentEdit();
    return edit && edit->textCursor().hasSelection();
}

void CodeView::save()
{
    if (FamilyDocument* document = m_tabs->currentDocument()) {
        saveFile(m_services, document);
    }
}

void CodeView::closeText()
{
    if (FamilyDocument* document = m_tabs->currentDocument()) {
        close(document);
    }
}

/// Discarded changes must leave memory too, because the project of the text stays open.
void CodeView::close(FamilyDocument* document)
{
    if ((document->isModified() || isGone(document)) && !askAboutUnsaved({document})) {
        return;
    }
    m_tabs->closeDocument(document);
    if (document->isModified() && QFileInfo::exists(document->fileName())) {
        document->reload();
    }
    m_services.parts->updateSoon();
}

void CodeView::changeEncoding()
{
    if (FamilyDocument* document = m_tabs->currentDocument()) {
        chooseEncoding(document);
        m_services.status->updateFile();
    }
}

void CodeView::showNext()
{
    m_tabs->setCurrentIndex((m_tabs->currentIndex() + 1) % m_tabs->count());
}

void CodeView::showPrevious()
{
    m_tabs->setCurrentIndex((m_tabs->currentIndex() + m_tabs->count() - 1) % m_tabs->count());
}

}  // namespace App
