#include "core/messagelist.h"

#include "core/messages.h"
#include "core/messages_p.h"
#include "core/project.h"
#include "core/resourceicon_p.h"

#include <algorithm>

namespace Zorv {

namespace {

QString hostIconPath(Message::Type type)
{
    switch (type) {
    case Message::Error:
        return QStringLiteral(":/icons/icons/error.png");
    case Message::Warning:
        return QStringLiteral(":/icons/icons/warn.png");
    default:
        return QStringLiteral(":/icons/icons/info.png");
    }
}

}  // namespace

MessageList::MessageList(Project* project) : m_project(project) {}

MessageList::~MessageList()
{
    for (Messages* messages : qAsConst(m_lists)) {
        messages->m->list = nullptr;
    }
}

Project* MessageList::project() const
{
    return m_project;
}

QList<Messages*> MessageList::lists() const
{
    return m_lists;
}

int MessageList::errorCount() const
{
    return m_errorCount;
}

int MessageList::warningCount() const
{
    return m_warningCount;
}

void MessageList::registerMessages(Messages* messages)
{
    MessageList* former = messages->m->list;
    if (former && former != this) {
        former->unregisterMessages(messages);
    }
    messages->m->list = this;
    m_lists.append(messages);
    m_startsStale = true;
    update();
}

void MessageList::unregisterMessages(Messages* messages)
{
    messages->m->list = nullptr;
    m_lists.removeAll(messages);
    m_startsStale = true;
    update();
}

void MessageList::update()
{
    // `m_total` is the number of rows that the views know. All old rows are removed first, then all
    // new ones are inserted.
    if (m_total > 0) {
        beginRemoveRows({}, 0, m_total - 1);
        m_total = 0;
        endRemoveRows();
    }
    m_errorCount = 0;
    m_warningCount = 0;
    for (const Messages* messages : qAsConst(m_lists)) {
        m_errorCount += messages->count(Message::Error);
        m_warningCount += messages->count(Message::Warning);
    }
    const int total = starts().last();
    if (total > 0) {
        beginInsertRows({}, 0, total - 1);
        m_total = total;
        endInsertRows();
    }
    emit updated();
}

Message MessageList::messageAt(int row, FileID& id) const
{
    int index = 0;
    const Messages* messages = messagesAt(row, &index);
    if (!messages) {
        return {};
    }
    if (m_project) {
        id = m_project->fileID(messages->file());
    }
    return messages->at(index);
}

Messages* MessageList::messagesAt(int row, int* index) const
{
    const QVector<int>& first = starts();
    if (row < 0 || row >= first.last()) {
        return nullptr;
    }
    const auto next = std::upper_bound(first.begin(), first.end(), row);
    const int place = static_cast<int>(next - first.begin()) - 1;
    if (index) {
        *index = row - first.at(place);
    }
    return m_lists.at(place);
}

int MessageList::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : m_total;
}

QVariant MessageList::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || (role != Qt::DisplayRole && role != Qt::DecorationRole)) {
        return {};
    }
    int place = 0;
    const Messages* messages = messagesAt(index.row(), &place);
    if (!messages) {
        return {};
    }
    const Message message = messages->at(place);
    if (role == Qt::DecorationRole) {
        return resourceIcon(hostIconPath(message.type));
    }
    return QStringLiteral("%1 (%2) : %3")
        .arg(messages->fileString(), QString::number(message.line + 1), message.text);
}

// Computed on demand: during a group of changes the sizes differ from those of the last update.
const QVector<int>& MessageList::starts() const
{
    if (!m_startsStale) {
        return m_starts;
    }
    m_starts.resize(m_lists.size() + 1);
    m_starts[0] = 0;
    for (int i = 0; i < m_lists.size(); ++i) {
        m_starts[i + 1] = m_starts.at(i) + m_lists.at(i)->count(Message::AllTypes);
    }
    m_startsStale = false;
    return m_starts;
}

}  // namespace Zorv
