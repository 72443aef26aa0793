#include "app/find/findsearch.h"

#include <zorv/code/codedoc/codedocument.h>
#include <zorv/editors/code/codeeditor.h>

#include <QElapsedTimer>
#include <QScopedValueRollback>
#include <QTimer>
#include <algorithm>

// Two positions matter: `m_origin`, where the user put the cursor, and `m_shown`, the last match
// that the search selected. Searching while typing always starts at the origin, so that a longer
// pattern can match again at the same place. Cursor moves by the search itself are marked by the
// counter `m_moving`; all others set a new origin.
//
// A forward search runs the expression from the selection's end, then from the start of the text. A
// backward search looks the match up in the counted ones, and only searches backward itself beyond
// the counter's limit. Counting is restarted when the text has not been edited for a while.

namespace App {

using Place = MatchCounter::Place;

namespace {

// After edits, wait before counting again. The wait is at least ten times what copying the text
// takes, so that copies cost at most a tenth of the time.
constexpr int ShortestWait = 300;  // milliseconds
constexpr int WaitPerCopy = 10;

constexpr Place Nowhere{-1, 0};

Place placeOf(const Zorv::CodeFind::Match& match)
{
    return match.hasMatch() ? Place{match.capturedStart(), match.capturedLength()} : Nowhere;
}

}  // namespace

FindSearch::FindSearch(Zorv::CodeEditor* editor, QObject* parent)
    : QObject(parent), m_editor(editor), m_recount(new QTimer(this))
{
    m_recount->setSingleShot(true);
    m_recount->setInterval(ShortestWait);
    connect(m_recount, &QTimer::timeout, this, &FindSearch::countAgain);
    connect(&m_text, &Zorv::CodeFindText::changed, this, &FindSearch::textChanged);
    connect(&m_counter, &MatchCounter::progressed, this, &FindSearch::stateChanged);
    connect(editor, &QPlainTextEdit::cursorPositionChanged, this, &FindSearch::cursorMoved);
    follow();
}

void FindSearch::follow()
{
    m_text.setDocument(m_editor->codeDocument());
    m_shown = Nowhere;
    m_note.clear();
    m_origin = m_editor->textCursor();
    countAgain();
}

void FindSearch::setActive(bool active)
{
    m_isActive = active;
    m_note.clear();
    if (!active) {
        m_text.drop();
    }
    countAgain();
}

void FindSearch::setPattern(const FindPattern& pattern)
{
    m_pattern = pattern;
    m_shown = Nowhere;
    m_note.clear();
    countAgain();
}

bool FindSearch::canFind() const
{
    return m_text.document() && m_pattern.find().isValid();
}

bool FindSearch::isMatchSelected() const
{
    const QTextCursor cursor = m_editor->textCursor();
    return m_shown.start >= 0 && cursor.selectionStart() == m_shown.start &&
           cursor.selectionEnd() == m_shown.start + m_shown.length;
}

bool FindSearch::isAtEmptyMatch() const
{
    return m_shown.length == 0 && isMatchSelected();
}

void FindSearch::textChanged()
{
    m_counter.stop();
    m_shown = Nowhere;
    if (m_isActive) {
        m_recount->start();
    }
}

void FindSearch::cursorMoved()
{
    if (m_moving > 0) {
        return;
    }
    m_origin = m_editor->textCursor();
    if (m_isActive) {
        m_note.clear();
        emit stateChanged();
    }
}

void FindSearch::countAgain()
{
    m_recount->stop();
    m_counter.stop();
    if (m_isActive && canFind()) {
        QElapsedTimer clock;
        clock.start();
        m_counter.start(m_pattern.find(), m_text.text());
        m_recount->setInterval(std::max(ShortestWait, int(clock.elapsed()) * WaitPerCopy));
    }
    emit stateChanged();
}

bool FindSearch::goTo(const Place& place, bool backward)
{
    if (place.start < 0) {
        return false;
    }
    const QTextCursor cursor = m_editor->textCursor();
    if (cursor.selectionStart() != place.start ||
        cursor.selectionEnd() != place.start + place.length) {
        const QScopedValueRollback<int> moving(m_moving, m_moving + 1);
        Zorv::CodeFind::select(m_editor, place.start, place.length, backward);
    }
    m_shown = place;
    return true;
}

void FindSearch::findWhileTyping()
{
    m_note.clear();
    if (m_origin.document() != m_editor->document()) {
        m_origin = m_editor->textCursor();
    }
    Place place = Nowhere;
    if (canFind()) {
        place = placeOf(m_pattern.find().next(m_text.text(), m_origin.selectionStart()));
    }
    if (canFind() && place.start < 0) {
        place = placeOf(m_pattern.find().next(m_text.text(), 0));
    }
    if (!goTo(place, false)) {
        const QScopedValueRollback<int> moving(m_moving, m_moving + 1);
        m_editor->setTextCursor(m_origin);
    }
    emit stateChanged();
}

void FindSearch::next()
{
    m_note.clear();
    if (canFind()) {
        const int from = m_editor->textCursor().selectionEnd() + (isAtEmptyMatch() ? 1 : 0);
        if (!goTo(placeOf(m_pattern.find().next(m_text.text(), from)), false) &&
            goTo(placeOf(m_pattern.find().next(m_text.text(), 0)), false)) {
            m_note = tr("from the start");
        }
        m_origin = m_editor->textCursor();
    }
    emit stateChanged();
}

void FindSearch::previous()
{
    m_note.clear();
    if (canFind()) {
        if (!goTo(placeBefore(m_editor->textCursor().selectionStart()), true) &&
            goTo(placeBefore(m_text.text().size() + 1), true)) {
            m_note = tr("from the end");
        }
        m_origin = m_editor->textCursor();
    }
    emit stateChanged();
}

/// Counted matches do not overlap. A plain backward search would find only the last letter of a
/// word for an expression that matches the whole word.
Place FindSearch::placeBefore(int start)
{
    if (!m_counter.isStarted()) {
        countAgain();
    }
    const Place* place = m_counter.lastBefore(start);
    if (place && m_counter.isLastOfMore(*place)) {
        return placeOf(m_pattern.find().previous(m_text.text(), start - 1));
    }
    return place ? *place : Nowhere;
}

void FindSearch::replaceOne(const QString& with)
{
    if (canFind() && !m_editor->isReadOnly()) {
        const QTextCursor cursor = m_editor->textCursor();
        const int start = cursor.selectionStart();
        const int length = cursor.selectionEnd() - start;
        const Zorv::CodeFind::Match match =
            length > 0 || isAtEmptyMatch() ? m_pattern.find().matchOf(m_text.text(), start, length)
                                           : Zorv::CodeFind::Match();
        if (match.hasMatch()) {
            m_pattern.find().replaceSelection(m_editor, match, m_pattern.replacement(with));
            // A match directly after the replacement counts only if it is not empty.
            m_shown = length == 0 ? Place{m_editor->textCursor().position(), 0} : Nowhere;
        }
    }
    next();
}

void FindSearch::replaceAll(const QString& with)
{
    if (canFind() && !m_editor->isReadOnly()) {
        const QScopedValueRollback<int> moving(m_moving, m_moving + 1);
        const int count =
            m_pattern.find().replaceAll(m_editor, m_text.text(), m_pattern.replacement(with));
        m_note = tr("%1 replaced").arg(count);
    }
    emit stateChanged();
}

QString FindSearch::countText() const
{
    const int count = m_counter.count();
    const int index = isMatchSelected() ? m_counter.indexOf(m_shown) : -1;
    const QString number = QString::number(count);
    if (!m_counter.isDone()) {
        return index < 0 ? QString() : tr("%1 of ...").arg(index + 1);
    }
    if (count == 0) {
        return tr("No matches");
    }
    if (m_counter.isCapped()) {
        return index < 0 ? tr("more than %n match(es)", nullptr, count)
                         : tr("%1 of more than %2").arg(QString::number(index + 1), number);
    }
    if (index >= 0) {
        return tr("%1 of %2").arg(QString::number(index + 1), number);
    }
    return tr("%n match(es)", nullptr, count);
}

QString FindSearch::state() const
{
    if (!m_pattern.error().isEmpty()) {
        return m_pattern.error();
    }
    const QString counted = canFind() ? countText() : QString();
    if (m_note.isEmpty() || counted.isEmpty()) {
        return counted + m_note;
    }
    return tr("%1, %2").arg(counted, m_note);
}

}  // namespace App
