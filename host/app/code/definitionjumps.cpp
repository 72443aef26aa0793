#include "app/code/definitionjumps.h"

#include "app/code/linkmark.h"
#include "app/code/textposition.h"
#include "app/session/gamesession.h"
#include "family/familydocument.h"
#include "family/meaning/reference.h"

#include <zorv/editors/code/codeeditor.h>

#include <QDir>
#include <QMouseEvent>
#include <QScrollBar>
#include <QTextBlock>

// Each jump first appends its start to a history of limited length. An entry holds a text cursor,
// which follows edits, and also file name, line and column for the case that the text is closed
// before the way back. Entries that lead nowhere are skipped.

namespace App {

using Family::FamilyDocument;
using Family::Reference;

DefinitionJumps::DefinitionJumps(Zorv::CodeEditor* editor, const JumpServices& services)
    : QObject(editor), m_editor(editor), m_services(services), m_mark(new LinkMark(editor))
{
    editor->installEventFilter(this);
    editor->viewport()->installEventFilter(this);
    // The underlined word may have moved.
    const auto clear = [this] { m_mark->clear(); };
    connect(editor->verticalScrollBar(), &QScrollBar::valueChanged, this, clear);
    connect(editor->horizontalScrollBar(), &QScrollBar::valueChanged, this, clear);
    connect(editor, &QPlainTextEdit::textChanged, this, clear);
}

void DefinitionJumps::goToDefinition()
{
    const QTextCursor cursor = m_editor->textCursor();
    jumpFrom({cursor.blockNumber(), cursor.positionInBlock()});
}

void DefinitionJumps::jumpFrom(const TextPosition& place)
{
    FamilyDocument* document = documentIn(m_editor);
    if (!document) {
        return;
    }
    const Reference reference = Family::referenceAt(document, place.line, place.column);
    const Family::Definition found =
        Family::definitionOf(reference, document, projectOf(document), place.line);
    m_mark->clear();
    if (found.isEmpty()) {
        m_services.tell(found.message);
        return;
    }
    if (!found.fileName.isEmpty()) {
        openFile(found.fileName);
        return;
    }
    remember();
    if (found.soundRow >= 0) {
        m_services.showSound(found.soundRow);
        return;
    }
    m_services.show(const_cast<FamilyDocument*>(found.place.document), found.place.line,
                    found.place.column);
}

bool DefinitionJumps::openFile(const QString& fileName)
{
    if (!Family::hasCodeSuffix(fileName)) {
        m_services.tell(
            tr("%1 is no text that can be shown here.").arg(QDir::toNativeSeparators(fileName)));
        return false;
    }
    remember();
    const bool isOpen = m_services.open(fileName);
    if (!isOpen) {
        m_history.removeLast();
    }
    return isOpen;
}

void DefinitionJumps::remember()
{
    constexpr int mostPlaces = 50;
    FamilyDocument* document = documentIn(m_editor);
    const QTextCursor cursor = m_editor->textCursor();
    m_history.append(
        {document, cursor, document->fileName(), cursor.blockNumber(), cursor.positionInBlock()});
    if (m_history.size() > mostPlaces) {
        m_history.removeFirst();
    }
}

void DefinitionJumps::goBack()
{
    while (!m_history.isEmpty()) {
        if (returnTo(m_history.takeLast())) {
            return;
        }
    }
    m_services.tell(tr("There is no jump to go back from."));
}

bool DefinitionJumps::returnTo(const Place& place)
{
    if (place.document) {
        const QTextCursor& cursor = place.cursor;
        m_services.show(place.document, cursor.blockNumber(), cursor.positionInBlock());
        return true;
    }
    if (place.fileName.isEmpty() || !m_services.open(place.fileName)) {
        return false;
    }
    m_services.show(documentIn(m_editor), place.line, place.column);
    return true;
}

bool DefinitionJumps::eventFilter(QObject* watched, QEvent* event)
{
    const bool isControl =
        (event->type() == QEvent::KeyPress || event->type() == QEvent::KeyRelease) &&
        static_cast<QKeyEvent*>(event)->key() == Qt::Key_Control;
    if (isControl && event->type() == QEvent::KeyPress) {
        mark(m_editor->viewport()->mapFromGlobal(QCursor::pos()));
    } else if (isControl || event->type() == QEvent::FocusOut || event->type() == QEvent::Leave) {
        m_mark->clear();
    }
    const bool isMouse =
        (event->type() == QEvent::MouseMove || event->type() == QEvent::MouseButtonPress) &&
        watched == m_editor->viewport();
    return (isMouse && filterMouse(event)) || QObject::eventFilter(watched, event);
}

/// True if the event was handled here and must not reach the text.
bool DefinitionJumps::filterMouse(QEvent* event)
{
    const auto* mouse = static_cast<QMouseEvent*>(event);
    if (mouse->modifiers() != Qt::ControlModifier) {
        m_mark->clear();
        return false;
    }
    mark(mouse->pos());
    if (event->type() == QEvent::MouseMove) {
        return m_mark->isVisible() && mouse->buttons() == Qt::NoButton;
    }
    if (!m_mark->isVisible() || mouse->button() != Qt::LeftButton) {
        return false;
    }
    jumpFrom(characterAt(m_editor, mouse->pos()));
    return true;
}

void DefinitionJumps::mark(const QPoint& point)
{
    const FamilyDocument* document = documentIn(m_editor);
    const TextPosition place = characterAt(m_editor, point);
    const bool isInside = m_editor->viewport()->rect().contains(point);
    if (!document || !place.isValid() || !isInside) {
        m_mark->clear();
        return;
    }
    const Reference reference = Family::referenceAt(document, place.line, place.column);
    if (reference.kind == Reference::None) {
        m_mark->clear();
    } else {
        m_mark->showBelow(place.line, reference.start, reference.end);
    }
}

}  // namespace App
