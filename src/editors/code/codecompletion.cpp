#include "editors/code/codecompletion_p.h"

#include "editors/code/codeeditor_p.h"
#include "editors/code/completerfile_p.h"
#include "editors/code/completiondelegate_p.h"

#include <QAbstractItemView>
#include <QCompleter>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QScrollBar>

#include <algorithm>

// The popup opens in two ways. A word file maps triggers to word lists: after each key, the end of
// the line (without blanks) is compared with the triggers, and a match opens its list. Or a host
// calls show() with words for the cursor's place.
//
// Without a word finder an accepted word appends what was not typed yet. With one it replaces the
// whole word at the cursor, and endWord() lets Return and Space finish a word without inserting.

namespace Zorv {

namespace {

const QString EndOfWord = QStringLiteral("~!@#$%^&*)_+{}|:\"<>?,./;'[]\\-=");

/// True if `trigger` ends the line and does not begin inside a word.
bool endsWith(const QString& line, const QString& trigger)
{
    if (!line.endsWith(trigger, Qt::CaseInsensitive)) {
        return false;
    }
    const int front = line.size() - trigger.size() - 1;
    return front < 0 || !(line.at(front).isLetterOrNumber() || line.at(front) == QLatin1Char('.'));
}

}  // namespace

CodeCompletion::CodeCompletion(CodeEditorPrivate* editor)
    : QObject(editor), m_editor(editor), m_completer(new QCompleter(this)),
      m_delegate(new CompletionDelegate(this))
{
    m_completer->setModelSorting(QCompleter::CaseInsensitivelySortedModel);
    m_completer->setCaseSensitivity(Qt::CaseInsensitive);
    m_completer->setCompletionMode(QCompleter::UnfilteredPopupCompletion);
    m_completer->setWrapAround(false);
    m_completer->setWidget(editor->q);
    m_completer->popup()->setAccessibleName(tr("Words to complete"));
    m_completer->popup()->installEventFilter(this);
    connect(m_completer, QOverload<const QString&>::of(&QCompleter::activated), this,
            &CodeCompletion::insert);
}

CodeCompletion::~CodeCompletion() = default;

bool CodeCompletion::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::LanguageChange) {
        m_completer->popup()->setAccessibleName(tr("Words to complete"));
    } else if (event->type() == QEvent::Show) {
        // The completer installs its own event filter with each new model. Install this one again,
        // so that it is called first.
        watched->installEventFilter(this);
    }
    const bool isKey = m_finder && event->type() == QEvent::KeyPress;
    return (isKey && endWord(static_cast<QKeyEvent*>(event))) ||
           QObject::eventFilter(watched, event);
}

bool CodeCompletion::readFile(const QString& fileName)
{
    CompleterFile file;
    const bool isThere = file.read(fileName);
    m_error = file.error();
    if (!m_error.isEmpty()) {
        return isThere;
    }
    useModel(nullptr);
    qDeleteAll(m_models);
    m_models.clear();
    m_longest = 0;
    for (auto list = file.words().begin(); list != file.words().end(); ++list) {
        auto* model = new CompletionModel(this);
        model->setWords(list.value());
        m_models.insert(list.key(), model);
        m_longest = std::max(m_longest, list.key().size());
    }
    return isThere;
}

bool CodeCompletion::isOpen() const
{
    return m_completer->popup()->isVisible();
}

void CodeCompletion::hide()
{
    m_completer->popup()->hide();
}

void CodeCompletion::useModel(QStringListModel* words)
{
    if (m_completer->model() != words) {
        hide();
        if (m_completer->model()) {
            disconnect(m_completer->model(), nullptr, this, nullptr);
        }
        m_completer->setModel(words);
        // Setting a model resets the delegate to the completer's own.
        m_completer->popup()->setItemDelegate(m_delegate);
    }
    if (words) {
        connect(words, &QObject::destroyed, this, &CodeCompletion::hide, Qt::UniqueConnection);
    }
}

void CodeCompletion::show(QStringListModel* words)
{
    if (m_editor->q->isReadOnly() || words->rowCount() == 0) {
        hide();
        return;
    }
    useModel(words);
    const auto word = m_finder ? m_finder(m_editor->q->textCursor()) : std::nullopt;
    if (word) {
        showFrom(word->start);
    } else {
        open(wordAtCursor());
    }
}

/// Shows all words, and selects the first match for the typed part of the word.
void CodeCompletion::showFrom(int start)
{
    hide();
    const QTextCursor cursor = m_editor->q->textCursor();
    const QString prefix = cursor.block().text().mid(start, cursor.positionInBlock() - start);
    open(prefix);
    // Set the prefix again: the words may have changed since the last search.
    m_completer->setCompletionPrefix(prefix);
    m_completer->popup()->setCurrentIndex(m_completer->currentIndex());
}

bool CodeCompletion::takesKey(const QKeyEvent* event) const
{
    switch (event->key()) {
    case Qt::Key_Escape:
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return isOpen();
    default:
        return false;
    }
}

QString CodeCompletion::wordAtCursor() const
{
    QTextCursor cursor = m_editor->q->textCursor();
    cursor.select(QTextCursor::WordUnderCursor);
    return cursor.selectedText();
}

/// The end of the line before the cursor, without blanks, as long as the longest trigger needs.
QString CodeCompletion::lineEnd() const
{
    const QTextCursor cursor = m_editor->q->textCursor();
    const QString text = cursor.block().text();
    QString reversed;
    for (int i = cursor.positionInBlock() - 1; i >= 0 && reversed.size() <= m_longest; --i) {
        if (text.at(i) != QLatin1Char(' ')) {
            reversed.append(text.at(i));
        }
    }
    std::reverse(reversed.begin(), reversed.end());
    return reversed;
}

QStringListModel* CodeCompletion::modelForLine() const
{
    const QString line = lineEnd();
    for (auto model = m_models.begin(); model != m_models.end(); ++model) {
        if (endsWith(line, model.key())) {
            return model.value();
        }
    }
    return nullptr;
}

void CodeCompletion::keyPressed(const QKeyEvent* event)
{
    constexpr Qt::KeyboardModifiers typing = Qt::ControlModifier | Qt::ShiftModifier;
    const QString text = event->text();
    if ((event->modifiers() & typing) && text.isEmpty()) {
        return;
    }
    if (m_models.isEmpty() && !isOpen()) {
        return;
    }
    QStringListModel* model = modelForLine();
    const bool altOnly = event->modifiers() & ~typing;
    const bool hasNothing = !model && !isOpen();
    if (altOnly || hasNothing || text.isEmpty() || EndOfWord.contains(text.back()) ||
        m_editor->q->isReadOnly()) {
        hide();
        return;
    }
    if (model) {
        useModel(model);
    }
    open(wordAtCursor());
}

void CodeCompletion::open(const QString& prefix)
{
    QAbstractItemView* popup = m_completer->popup();
    if (prefix != m_completer->completionPrefix()) {
        m_completer->setCompletionPrefix(prefix);
        popup->setCurrentIndex(m_completer->completionModel()->index(0, 0));
    }
    // The completer expects widget coordinates, gutter included.
    QRect place = m_editor->q->cursorRect().translated(m_editor->q->viewport()->pos());
    place.setWidth(popup->sizeHintForColumn(0) + popup->verticalScrollBar()->sizeHint().width());
    m_completer->complete(place);
}

void CodeCompletion::insert(const QString& text)
{
    if (m_editor->q->isReadOnly()) {
        return;
    }
    if (m_finder) {
        replace(text);
        return;
    }
    QTextCursor cursor = m_editor->q->textCursor();
    cursor.movePosition(QTextCursor::Left);
    cursor.movePosition(QTextCursor::EndOfWord);
    cursor.insertText(text.right(text.size() - m_completer->completionPrefix().size()));
    m_editor->q->setTextCursor(cursor);
}

/// The columns that a word replaces. If the finder knows no word here, the popup was opened by a
/// trigger from the word file; then the typed prefix is replaced.
CodeEditor::WordRange CodeCompletion::range() const
{
    const QTextCursor cursor = m_editor->q->textCursor();
    if (const auto word = m_finder(cursor)) {
        return *word;
    }
    const int column = cursor.positionInBlock();
    const QString prefix = m_completer->completionPrefix();
    const bool isTyped = cursor.block().text().left(column).endsWith(prefix, Qt::CaseInsensitive);
    return {isTyped ? column - prefix.size() : column, column};
}

void CodeCompletion::replace(const QString& word)
{
    const CodeEditor::WordRange columns = range();
    QTextCursor cursor = m_editor->q->textCursor();
    const int line = cursor.block().position();
    cursor.setPosition(line + columns.start);
    cursor.setPosition(line + columns.end, QTextCursor::KeepAnchor);
    if (cursor.selectedText() == word) {
        cursor.clearSelection();
    } else {
        cursor.insertText(word);
    }
    m_editor->q->setTextCursor(cursor);
}

/// Return on a complete word, and a blank after any word, go to the text.
bool CodeCompletion::endWord(QKeyEvent* event)
{
    const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (!isReturn && event->key() != Qt::Key_Space) {
        return false;
    }
    const QString word = m_completer->popup()->currentIndex().data().toString();
    const CodeEditor::WordRange columns = range();
    const QString line = m_editor->q->textCursor().block().text();
    const bool isWhole = line.mid(columns.start, columns.end - columns.start) == word;
    if (isReturn && !word.isEmpty() && !isWhole) {
        return false;
    }
    hide();
    QCoreApplication::sendEvent(m_editor->q, event);
    return true;
}

}  // namespace Zorv
