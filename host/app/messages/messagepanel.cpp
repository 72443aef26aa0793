#include "app/messages/messagepanel.h"

#include "app/look/language.h"
#include "app/window/jumps.h"
#include "app/window/partlist.h"
#include "app/window/statusfields.h"
#include "app/window/windowservices.h"
#include "family/familydocument.h"
#include "family/project/familyproject.h"

#include <zorv/code/codedoc/codedocument.h>
#include <zorv/core/messagelist.h>
#include <zorv/core/messages.h>

#include <QHelpEvent>
#include <QPainter>
#include <QScrollBar>
#include <QToolTip>
#include <algorithm>

namespace App {

using Zorv::Message;
using Zorv::Messages;

MessagePanel::MessagePanel(const WindowServices& services) : m_services(services)
{
    followLanguage(this, [this] {
        setAccessibleName(tr("Messages of the project"));
        emit summaryChanged();
    });
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setUniformItemSizes(true);
    connect(this, &QListView::activated, this, &MessagePanel::request);
    connect(this, &MessagePanel::summaryChanged, services.status,
            [this] { m_services.status->setProblems(summary()); });
}

void MessagePanel::setMessages(Zorv::MessageList* messages)
{
    if (messages == m_list) {
        return;
    }
    if (m_list) {
        m_list->disconnect(this);
    }
    m_list = messages;
    m_currentLine = -1;
    if (messages) {
        // Before the view's own connections, which drop the current row.
        connect(messages, &QAbstractItemModel::rowsAboutToBeRemoved, this,
                &MessagePanel::beginUpdate);
    }
    setModel(messages);
    if (messages) {
        connect(messages, &Zorv::MessageList::updated, this, &MessagePanel::endUpdate);
    }
    emit summaryChanged();
}

Zorv::MessageList* MessagePanel::messages() const
{
    return m_list;
}

/// The row of the first message of a file, -1 for one without any.
int MessagePanel::firstRowOf(const Messages* messages) const
{
    int row = 0;
    const QList<Messages*> lists = m_list ? m_list->lists() : QList<Messages*>();
    for (const Messages* before : lists) {
        const int count = before->count(Message::AllTypes);
        if (before == messages) {
            return count > 0 ? row : -1;
        }
        row += count;
    }
    return -1;
}

void MessagePanel::showMessagesOf(const Zorv::CodeDocument* document)
{
    const int row = firstRowOf(document->messages());
    if (row >= 0) {
        setCurrentIndex(m_list->index(row));
        scrollTo(currentIndex(), QAbstractItemView::PositionAtTop);
    }
}

bool MessagePanel::goToMessage(const Zorv::CodeDocument* document, int line)
{
    const Messages* messages = document ? document->messages() : nullptr;
    const int first = messages ? firstRowOf(messages) : -1;
    const int place = first < 0 ? -1 : messages->indexOfLine(line);
    if (place < 0 || place >= messages->count(Message::AllTypes) ||
        messages->at(place).line != line) {
        return false;
    }
    if (messages != m_currentFile || line != m_currentLine || !currentIndex().isValid()) {
        setCurrentIndex(m_list->index(first + place));
    }
    scrollTo(currentIndex());
    return true;
}

void MessagePanel::showProject(Family::FamilyProject* project)
{
    setMessages(project ? project->messages() : nullptr);
}

void MessagePanel::followLine(int line)
{
    goToMessage(m_services.parts->document(), line);
}

void MessagePanel::showMessageOfLine(int line)
{
    if (goToMessage(m_services.parts->document(), line)) {
        comeForward();
    }
}

QVector<PanelPlace> MessagePanel::places() const
{
    return {PanelPlace::of(this)};
}

void MessagePanel::comeForward()
{
    bringForward(this);
    setFocus();
}

QString MessagePanel::summary() const
{
    if (!m_list) {
        return {};
    }
    const int errors = m_list->errorCount();
    const int warnings = m_list->warningCount();
    if (errors + warnings == 0) {
        return tr("No problems");
    }
    const QString errorText = errors == 1 ? tr("1 error") : tr("%1 errors").arg(errors);
    const QString warningText = warnings == 1 ? tr("1 warning") : tr("%1 warnings").arg(warnings);
    return tr("%1, %2").arg(errorText, warningText);
}

QSize MessagePanel::minimumSizeHint() const
{
    return {QListView::minimumSizeHint().width(), fontMetrics().height() + 2 * frameWidth() + 2};
}

void MessagePanel::paintEvent(QPaintEvent* event)
{
    QListView::paintEvent(event);
    if (!model() || model()->rowCount() == 0) {
        QPainter painter(viewport());
        painter.setPen(palette().color(QPalette::Disabled, QPalette::Text));
        painter.drawText(viewport()->rect().adjusted(2, 0, 0, 0), Qt::AlignVCenter,
                         tr("No messages"));
    }
}

bool MessagePanel::viewportEvent(QEvent* event)
{
    if (event->type() != QEvent::ToolTip) {
        return QListView::viewportEvent(event);
    }
    const auto* help = static_cast<QHelpEvent*>(event);
    const QString text = indexAt(help->pos()).data().toString().toHtmlEscaped();
    QToolTip::showText(help->globalPos(), text.isEmpty() ? text : QLatin1String("<qt>") + text,
                       viewport());
    return true;
}

void MessagePanel::currentChanged(const QModelIndex& current, const QModelIndex& previous)
{
    QListView::currentChanged(current, previous);
    if (m_isUpdating || !m_list) {
        return;
    }
    int place = 0;
    m_currentFile = m_list->messagesAt(current.row(), &place);
    m_currentLine = m_currentFile ? m_currentFile->at(place).line : -1;
}

void MessagePanel::request(const QModelIndex& index)
{
    int place = 0;
    const Messages* messages = m_list ? m_list->messagesAt(index.row(), &place) : nullptr;
    auto* document = messages ? dynamic_cast<Family::FamilyDocument*>(messages->file()) : nullptr;
    if (document) {
        const Message message = messages->at(place);
        m_services.jumps->showPlace(document, message.line, message.column, 0);
    }
}

void MessagePanel::beginUpdate()
{
    m_isUpdating = true;
    m_scroll = verticalScrollBar()->value();
}

/// The message on the line of the current row, or the next one of its file,
/// becomes the current row.
void MessagePanel::endUpdate()
{
    const QList<Messages*> lists = m_list->lists();
    int row = 0;
    for (const Messages* messages : lists) {
        const int count = messages->count(Message::AllTypes);
        if (m_currentLine >= 0 && messages == m_currentFile && count > 0) {
            row += std::min(messages->indexOfLine(m_currentLine), count - 1);
            setCurrentIndex(m_list->index(row));
            break;
        }
        row += count;
    }
    if (m_scroll > 0) {
        // The rows are laid out first: the range of the bar is that of none.
        executeDelayedItemsLayout();
        verticalScrollBar()->setValue(m_scroll);
    }
    m_isUpdating = false;
    m_scroll = 0;
    emit summaryChanged();
}

}  // namespace App
