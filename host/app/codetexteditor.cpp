#include "app/codetexteditor.h"

#include "app/codeedit.h"
#include "app/documenttabs.h"
#include "app/mainwindow.h"
#include "core/dialogs/dialogs.h"
#include "core/interface.h"
#include "family/familydocument.h"

#include <QAction>
#include <QTextCursor>
#include <QTextDocument>

namespace App {

namespace {

constexpr unsigned FindTitle = 8;

QTextDocument::FindFlags findFlags(unsigned flags)
{
    return QTextDocument::FindFlags(int(flags));
}

}  // namespace

CodeTextEditor::CodeTextEditor(MainWindow* window)
    : FileEditor(window), m_window(window), m_action(new QAction(this))
{
    m_action->setObjectName(QStringLiteral("editor_code"));
    connect(m_action, &QAction::triggered, this, [this] { host()->activateEditor(this); });
    connect(window->tabs(), &DocumentTabs::currentDocumentChanged, this,
            &CodeTextEditor::followFront);
    retranslate();
}

void CodeTextEditor::followFront(const Family::FamilyDocument* document)
{
    if (document) {
        activate();
    } else {
        deactivate();
    }
    emit modified();
}

QString CodeTextEditor::name() const
{
    return QStringLiteral("code");
}

int CodeTextEditor::canEditFileType() const
{
    return 1;
}

QStringList CodeTextEditor::areas() const
{
    return {QStringLiteral("code")};
}

void CodeTextEditor::retranslate()
{
    m_action->setText(tr("Code"));
}

CodeEdit* CodeTextEditor::edit() const
{
    return m_window->tabs()->currentEdit();
}

Zorv::ProjectFile* CodeTextEditor::file() const
{
    return m_window->tabs()->currentDocument();
}

QString CodeTextEditor::fileFilter() const
{
    const Family::FamilyDocument* document = m_window->tabs()->currentDocument();
    return document ? Family::fileKindName(document->kind()) + QLatin1Char(';') +
                          Family::fileSuffix(document->kind())
                    : QString();
}

void CodeTextEditor::navigateTo(const QString&, unsigned line, unsigned column, unsigned length)
{
    if (CodeEdit* text = edit()) {
        text->goTo(int(line), int(column), int(length));
    }
}

void CodeTextEditor::undo()
{
    if (CodeEdit* text = edit()) {
        text->undo();
    }
}

void CodeTextEditor::redo()
{
    if (CodeEdit* text = edit()) {
        text->redo();
    }
}

void CodeTextEditor::cut()
{
    if (CodeEdit* text = edit()) {
        text->cut();
    }
}

void CodeTextEditor::copy()
{
    if (CodeEdit* text = edit()) {
        text->copy();
    }
}

void CodeTextEditor::paste()
{
    if (CodeEdit* text = edit()) {
        text->paste();
    }
}

void CodeTextEditor::selectAll()
{
    if (CodeEdit* text = edit()) {
        text->selectAll();
    }
}

void CodeTextEditor::find(const QString& text, unsigned flags)
{
    CodeEdit* view = edit();
    if (view && !text.isEmpty() && !view->find(text, findFlags(flags))) {
        Zorv::Dialogs::instance()->information(host()->text(FindTitle), tr("No text found!"));
    }
}

void CodeTextEditor::replace(const QString& text, const QString& with, unsigned flags, bool all)
{
    CodeEdit* view = edit();
    if (!view || text.isEmpty()) {
        return;
    }
    if (all) {
        replaceAll(text, with, flags);
        return;
    }
    const bool withCase = (flags & QTextDocument::FindCaseSensitively) != 0;
    QTextCursor cursor = view->textCursor();
    if (cursor.selectedText().compare(text, withCase ? Qt::CaseSensitive : Qt::CaseInsensitive) ==
        0) {
        cursor.insertText(with);
    }
    find(text, flags);
}

/// From the start to the end, as one step of undo.
void CodeTextEditor::replaceAll(const QString& text, const QString& with, unsigned flags)
{
    QTextDocument* document = edit()->document();
    const QTextDocument::FindFlags forward =
        findFlags(flags & ~unsigned(QTextDocument::FindBackward));
    QTextCursor step(document);
    QTextCursor found = document->find(text, 0, forward);
    if (found.isNull()) {
        Zorv::Dialogs::instance()->information(host()->text(FindTitle), tr("No text found!"));
        return;
    }
    step.beginEditBlock();
    while (!found.isNull()) {
        found.insertText(with);
        found = document->find(text, found, forward);
    }
    step.endEditBlock();
}

}  // namespace App
