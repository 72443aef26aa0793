#include "app/code/codeview.h"

#include "app/code/codetexteditor.h"
#include "app/code/documenttabs.h"
#include "app/find/findbar.h"
#include "family/familydocument.h"

#include <zorv/editors/code/codeeditor.h>
#include <zorv/editors/code/codeworkspace.h>

#include <QVBoxLayout>

namespace App {

using Zorv::CodeEditor;

CodeView::CodeView(QObject* parent)
    : QObject(parent), m_widget(new QWidget), m_layout(new QVBoxLayout(m_widget)),
      m_workspace(new Zorv::CodeWorkspace(this)),
      m_textEditor(new CodeTextEditor(m_workspace, this)), m_tabs(new DocumentTabs(m_textEditor)),
      m_findBar(new FindBar(m_workspace->editor()))
{
    m_layout->setContentsMargins(0, 0, 0, 0);
    m_layout->setSpacing(0);
    m_layout->addWidget(m_workspace->widget());
    addBar(m_findBar);
    setUpEditor();
    connect(m_tabs, &DocumentTabs::currentDocumentChanged, this, &CodeView::showFront);
    connect(m_tabs, &DocumentTabs::stateChanged, this, &CodeView::stateChanged);
}

// The editor lets its document and the workspace go while both are there.
CodeView::~CodeView()
{
    m_tabs->blockSignals(true);
    delete m_findBar;
    m_textEditor->showDocument(nullptr);
    delete m_textEditor;
    delete m_workspace;
}

void CodeView::setUpEditor()
{
    CodeEditor* text = editor();
    text->setLineWrapMode(QPlainTextEdit::NoWrap);
    connect(text, &QPlainTextEdit::cursorPositionChanged, this, [this] {
        if (m_textEditor->isActive()) {
            emit cursorMoved();
        }
    });
    connect(text, &CodeEditor::currentLineChanged, this, [this](int line) {
        if (m_textEditor->isActive()) {
            emit lineChanged(line);
        }
    });
    for (const auto signal : {&QPlainTextEdit::copyAvailable, &QPlainTextEdit::undoAvailable,
                              &QPlainTextEdit::redoAvailable}) {
        connect(text, signal, this, &CodeView::stateChanged);
    }
}

void CodeView::addBar(QWidget* bar)
{
    m_layout->addWidget(bar);
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

void CodeView::showFront(const Family::FamilyDocument* document)
{
    if (document && !m_workspace->isActive()) {
        m_workspace->activate();
    } else if (!document) {
        m_workspace->deactivate();
    }
    m_findBar->follow();
    if (document) {
        emit lineChanged(editor()->textCursor().blockNumber());
    }
}

}  // namespace App
