#include "app/code/wordhover.h"

#include "app/code/textposition.h"
#include "app/session/gamesession.h"
#include "family/familydocument.h"
#include "family/meaning/wordmeaning.h"

#include <zorv/code/codedoc/codeblockdata.h>
#include <zorv/editors/code/codeeditor.h>

#include <QHelpEvent>
#include <QTextBlock>
#include <QToolTip>
#include <algorithm>

namespace App {

namespace {

bool hasMessage(const QTextBlock& block, int column)
{
    const Zorv::CodeBlockData* data = Zorv::CodeBlockData::testBlockData(block);
    if (!data) {
        return false;
    }
    const auto& messages = data->syntaxMessages();
    return std::any_of(messages.begin(), messages.end(),
                       [column](const Zorv::CodeBlockData::SyntaxMessage& message) {
                           return message.start <= column && column <= message.end;
                       });
}

/// Text from files is escaped, so that tags are shown as they are.
QString tipOf(const Family::WordMeaning& meaning)
{
    constexpr int mostShown = 300;
    QString tip = QStringLiteral("<b>%1</b>").arg(meaning.title.left(mostShown).toHtmlEscaped());
    for (const QString& line : meaning.lines) {
        tip += QStringLiteral("<br>") + line.left(mostShown).toHtmlEscaped();
    }
    return tip;
}

}  // namespace

WordHover::WordHover(Zorv::CodeEditor* editor) : QObject(editor), m_editor(editor)
{
    editor->viewport()->installEventFilter(this);
}

bool WordHover::eventFilter(QObject* watched, QEvent* event)
{
    // Check the event first: other events can arrive while the editor is being destroyed.
    const bool isAsked = event->type() == QEvent::ToolTip && watched == m_editor->viewport();
    return (isAsked && show(static_cast<QHelpEvent*>(event))) ||
           QObject::eventFilter(watched, event);
}

bool WordHover::show(const QHelpEvent* event)
{
    const Family::FamilyDocument* document = documentIn(m_editor);
    const TextPosition place = characterAt(m_editor, event->pos());
    const QTextCursor nearest = m_editor->cursorForPosition(event->pos());
    if (!document || !place.isValid() || hasMessage(nearest.block(), nearest.positionInBlock())) {
        return false;
    }
    const Family::WordMeaning meaning =
        Family::meaningAt(document, projectOf(document), place.line, place.column);
    if (meaning.isEmpty()) {
        return false;
    }
    QToolTip::showText(event->globalPos(), tipOf(meaning), m_editor->viewport());
    return true;
}

}  // namespace App
