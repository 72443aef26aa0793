#include "app/code/wordpopup.h"

#include "app/code/textposition.h"
#include "app/gamesession.h"
#include "family/familydocument.h"
#include "family/meaning/completions.h"

#include <zorv/editors/code/codeeditor.h>
#include <zorv/editors/code/completionmodel.h>

#include <QAbstractItemView>
#include <QApplication>
#include <QCompleter>
#include <QKeyEvent>
#include <QTextBlock>

namespace App {

using Family::Completions;
using Family::FamilyDocument;

namespace {

Completions completionsIn(const Zorv::CodeEditor* editor)
{
    const FamilyDocument* document = documentIn(editor);
    const QTextCursor cursor = editor->textCursor();
    return document ? Family::completionsAt(document, projectOf(document), cursor.blockNumber(),
                                            cursor.positionInBlock())
                    : Completions();
}

}  // namespace

WordPopup::WordPopup(Zorv::CodeEditor* editor)
    : QObject(editor), m_editor(editor), m_words(new Zorv::CompletionModel(this))
{
    QCompleter* completer = editor->completer();
    // The editor would add what the word has more than was typed.
    completer->disconnect(SIGNAL(activated(QString)));
    connect(completer, QOverload<const QString&>::of(&QCompleter::activated), this,
            &WordPopup::insert);
    completer->popup()->installEventFilter(this);
}

bool WordPopup::open()
{
    const Completions found = completionsIn(m_editor);
    if (found.words.isEmpty() || m_editor->isReadOnly()) {
        return false;
    }
    QCompleter* completer = m_editor->completer();
    completer->popup()->hide();
    QVector<Zorv::CompletionWord> words;
    for (const Family::WordOffer& offer : found.words) {
        words.append({offer.word, offer.description});
    }
    m_words->setWords(words);
    m_editor->showCompletions(m_words);

    const QTextCursor cursor = m_editor->textCursor();
    const QString front = cursor.block().text().left(cursor.positionInBlock());
    completer->setCompletionPrefix(front.mid(found.start));
    completer->popup()->setCurrentIndex(completer->currentIndex());
    return true;
}

WordPopup::Range WordPopup::rangeAtCursor() const
{
    const Completions found = completionsIn(m_editor);
    if (!found.words.isEmpty()) {
        return {found.start, found.end};
    }
    // Where the grammar expects nothing, the trigger of a file of words may have opened it.
    const QTextCursor cursor = m_editor->textCursor();
    const int column = cursor.positionInBlock();
    const QString prefix = m_editor->completer()->completionPrefix();
    const bool isTyped = cursor.block().text().left(column).endsWith(prefix, Qt::CaseInsensitive);
    return {isTyped ? column - prefix.size() : column, column};
}

void WordPopup::insert(const QString& word)
{
    if (m_editor->isReadOnly() || !m_editor->codeDocument()) {
        return;
    }
    const Range range = rangeAtCursor();
    QTextCursor cursor = m_editor->textCursor();
    const int line = cursor.block().position();
    cursor.setPosition(line + range.start);
    cursor.setPosition(line + range.end, QTextCursor::KeepAnchor);
    if (cursor.selectedText() == word) {
        cursor.clearSelection();
    } else {
        cursor.insertText(word);
    }
    m_editor->setTextCursor(cursor);
}

bool WordPopup::adds(const QString& word) const
{
    const Range range = rangeAtCursor();
    const QString line = m_editor->textCursor().block().text();
    return !word.isEmpty() && line.mid(range.start, range.end - range.start) != word;
}

bool WordPopup::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Show) {
        // With each list of words, the completer puts a filter of its own in front.
        watched->installEventFilter(this);
    }
    const bool isKey = event->type() == QEvent::KeyPress;
    return (isKey && endWord(static_cast<QKeyEvent*>(event))) ||
           QObject::eventFilter(watched, event);
}

/// A word that stands there whole needs no key to take it, and a blank ends any word: both
/// go to the text.
bool WordPopup::endWord(QKeyEvent* event)
{
    QAbstractItemView* popup = m_editor->completer()->popup();
    const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    const bool isWhole = isReturn && !adds(popup->currentIndex().data().toString());
    if (!isWhole && event->key() != Qt::Key_Space) {
        return false;
    }
    popup->hide();
    QApplication::sendEvent(m_editor, event);
    return true;
}

}  // namespace App
