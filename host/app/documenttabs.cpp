#include "app/documenttabs.h"

#include "app/codeedit.h"
#include "app/look/language.h"
#include "family/familydocument.h"

#include <QDir>

namespace App {

using Family::FamilyDocument;

DocumentTabs::DocumentTabs(QWidget* parent) : QTabWidget(parent)
{
    setDocumentMode(true);
    setTabsClosable(true);
    setMovable(true);
    setUsesScrollButtons(true);
    followLanguage(this, [this] { setAccessibleName(tr("Open texts")); });
    connect(this, &QTabWidget::currentChanged, this, &DocumentTabs::announceCurrent);
    connect(this, &QTabWidget::tabCloseRequested, this,
            [this](int index) { emit closeRequested(editAt(index)->codeDocument()); });
}

// The edits go while their documents are still there, and quietly.
DocumentTabs::~DocumentTabs()
{
    blockSignals(true);
    while (count() > 0) {
        delete widget(0);
    }
}

CodeEdit* DocumentTabs::showDocument(FamilyDocument* document)
{
    CodeEdit* edit = editOf(document);
    if (!edit) {
        edit = addEdit(document);
    }
    setCurrentWidget(edit);
    edit->setFocus();
    return edit;
}

CodeEdit* DocumentTabs::addEdit(FamilyDocument* document)
{
    auto* edit = new CodeEdit(document, this);
    connect(document, &QTextDocument::modificationChanged, edit, [this, edit] { updateTab(edit); });
    // A view never outlives its document, whoever ends that.
    connect(document, &QObject::destroyed, edit, [this, document] { closeDocument(document); });
    connect(edit, &QPlainTextEdit::cursorPositionChanged, this, [this, edit] {
        if (edit == currentEdit()) {
            emit cursorMoved();
        }
    });
    for (const auto signal : {&QPlainTextEdit::copyAvailable, &QPlainTextEdit::undoAvailable,
                              &QPlainTextEdit::redoAvailable}) {
        connect(edit, signal, this, &DocumentTabs::stateChanged);
    }
    addTab(edit, QString());
    updateTab(edit);
    return edit;
}

void DocumentTabs::closeDocument(const FamilyDocument* document)
{
    CodeEdit* edit = editOf(document);
    if (edit) {
        removeTab(indexOf(edit));
        delete edit;
    }
}

CodeEdit* DocumentTabs::currentEdit() const
{
    return static_cast<CodeEdit*>(currentWidget());
}

FamilyDocument* DocumentTabs::currentDocument() const
{
    const CodeEdit* edit = currentEdit();
    return edit ? edit->codeDocument() : nullptr;
}

CodeEdit* DocumentTabs::editOf(const FamilyDocument* document) const
{
    for (int i = 0; i < count(); ++i) {
        if (editAt(i)->codeDocument() == document) {
            return editAt(i);
        }
    }
    return nullptr;
}

CodeEdit* DocumentTabs::editAt(int index) const
{
    return static_cast<CodeEdit*>(widget(index));
}

void DocumentTabs::updateTabs()
{
    for (int i = 0; i < count(); ++i) {
        updateTab(editAt(i));
    }
}

void DocumentTabs::updateTab(const CodeEdit* edit)
{
    const FamilyDocument* document = edit->codeDocument();
    const int index = indexOf(const_cast<CodeEdit*>(edit));
    QString title = document->title().isEmpty() ? tr("new file") : document->title();
    title.replace(QLatin1Char('&'), QLatin1String("&&"));
    setTabText(index, document->isModified() ? title + QLatin1Char('*') : title);
    setTabToolTip(index, QDir::toNativeSeparators(document->fileName()));
    emit stateChanged();
}

void DocumentTabs::announceCurrent()
{
    emit currentDocumentChanged(currentDocument());
}

}  // namespace App
