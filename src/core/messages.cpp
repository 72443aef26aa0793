#include "core/messages.h"

#include "core/messagelist.h"
#include "core/messages_p.h"
#include "core/project.h"
#include "core/projectfile.h"
#include "core/resourceicon_p.h"

#include <QPointer>

namespace Zorv {

namespace {

bool standsBefore(const Message& message, int line, int column)
{
    return message.line < line || (message.line == line && message.column < column);
}

QString iconPath(Message::Type type)
{
    switch (type) {
    case Message::Error:
        return QStringLiteral(":/zorvl_icons/icons/error.png");
    case Message::Warning:
        return QStringLiteral(":/zorvl_icons/icons/warn.png");
    default:
        return QStringLiteral(":/zorvl_icons/icons/info.png");
    }
}

Message makeMessage(Message::Type type, const QString& text, int line, int column)
{
    Message message;
    message.type = type;
    message.line = line;
    message.column = column;
    message.text = text;
    return message;
}

}  // namespace

void MessagesPrivate::count(Message::Type type, int by)
{
    if (type >= Message::Error && type < Message::AllTypes) {
        counts[type] += by;
    }
}

Messages::Messages(ProjectFile* file) : m(std::make_unique<MessagesPrivate>())
{
    m->file = file;
}

Messages::~Messages()
{
    if (m->list) {
        m->list->unregisterMessages(this);
    }
}

ProjectFile* Messages::file() const
{
    return m->file;
}

QString Messages::fileString() const
{
    const Project* project = m->list ? m->list->project() : nullptr;
    if (!project) {
        return {};
    }
    const FileID::Type type = project->fileID(m->file).lowest();
    if (!type) {
        return {};
    }
    return project->fileTitle(type, project->filesByType(type).indexOf(m->file));
}

int Messages::count(Message::Type type) const
{
    if (type == Message::AllTypes) {
        return m->messages.size();
    }
    return type >= Message::Error && type < Message::AllTypes ? m->counts[type] : 0;
}

Message Messages::at(int index) const
{
    return index >= 0 && index < m->messages.size() ? m->messages.at(index) : Message();
}

void Messages::add(Message::Type type, const QString& text, int line, int column)
{
    insertMessages(m->messages.size(), {makeMessage(type, text, line, column)});
    changed();
}

// Searches only from the hint on, so that messages reported in order are appended quickly. Parsers
// and their tests depend on where a late message ends up.
void Messages::insert(Message::Type type, const QString& text, int line, int column)
{
    int place = qMin(m->insertHint, m->messages.size());
    while (place < m->messages.size()) {
        if (standsBefore(m->messages.at(place), line, column)) {
            m->insertHint = ++place;
            break;
        }
        ++place;
    }
    insertMessages(place, {makeMessage(type, text, line, column)});
    changed();
}

void Messages::clearLine(int line)
{
    m->insertHint = 0;
    bool removed = false;
    for (int i = m->messages.size() - 1; i >= 0 && m->messages.lineAt(i) >= line; --i) {
        if (m->messages.lineAt(i) != line) {
            continue;
        }
        removeMessages(i, 1);
        removed = true;
    }
    if (removed) {
        changed();
    }
}

void Messages::clear()
{
    m->insertHint = 0;
    if (m->messages.size() == 0) {
        return;
    }
    removeMessages(0, m->messages.size());
    changed();
}

void Messages::beginChange()
{
    ++m->changeDepth;
}

void Messages::endChange()
{
    if (m->changeDepth > 0 && --m->changeDepth == 0) {
        notifyUpdate();
    }
}

void Messages::notifyUpdate()
{
    // A receiver of the project's update may close the file.
    const QPointer<Messages> self(this);
    if (m->list) {
        m->list->update();
    }
    if (self) {
        emit updated();
    }
}

void Messages::replaceLine(int line, const QVector<Message>& messages)
{
    const int first = indexOfLine(line);
    const int oldCount = indexOfLine(line + 1) - first;
    const int common = qMin(oldCount, messages.size());
    bool different = oldCount != messages.size();
    for (int i = 0; i < common; ++i) {
        if (m->messages.at(first + i) == messages.at(i)) {
            continue;
        }
        setMessage(first + i, messages.at(i));
        different = true;
    }
    if (oldCount > common) {
        removeMessages(first + common, oldCount - common);
    }
    if (messages.size() > common) {
        insertMessages(first + common, messages.mid(common));
    }
    if (!different) {
        return;
    }
    m->insertHint = 0;
    changed();
}

void Messages::moveLines(int first, int removed, int added)
{
    const int begin = indexOfLine(first);
    const int count = indexOfLine(first + removed) - begin;
    const bool shifts = added != removed && begin + count < m->messages.size();
    if (count > 0) {
        removeMessages(begin, count);
    }
    if (shifts) {
        m->messages.shiftLines(begin, added - removed);
    }
    if (count == 0 && !shifts) {
        return;
    }
    m->insertHint = 0;
    changed();
}

int Messages::indexOfLine(int line) const
{
    int low = 0;
    int high = m->messages.size();
    while (low < high) {
        const int middle = low + (high - low) / 2;
        if (m->messages.lineAt(middle) < line) {
            low = middle + 1;
        } else {
            high = middle;
        }
    }
    return low;
}

int Messages::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : m->messages.size();
}

QVariant Messages::data(const QModelIndex& index, int role) const
{
    if (!hasRow(index)) {
        return {};
    }
    if (role == Qt::DisplayRole) {
        return m->messages.at(index.row()).text;
    }
    if (role == Qt::DecorationRole) {
        return resourceIcon(iconPath(m->messages.at(index.row()).type));
    }
    return {};
}

bool Messages::hasRow(const QModelIndex& index) const
{
    return index.isValid() && index.row() < m->messages.size();
}

void Messages::insertMessages(int at, const QVector<Message>& messages)
{
    beginInsertRows({}, at, at + messages.size() - 1);
    for (const Message& message : messages) {
        m->messages.insert(at++, message);
        m->count(message.type, 1);
    }
    if (m->list) {
        m->list->m_startsStale = true;
    }
    endInsertRows();
}

void Messages::removeMessages(int first, int count)
{
    beginRemoveRows({}, first, first + count - 1);
    for (int i = first; i < first + count; ++i) {
        m->count(m->messages.at(i).type, -1);
    }
    m->messages.remove(first, count);
    if (m->list) {
        m->list->m_startsStale = true;
    }
    endRemoveRows();
}

void Messages::setMessage(int at, const Message& message)
{
    m->count(m->messages.at(at).type, -1);
    m->messages.set(at, message);
    m->count(message.type, 1);
    const QModelIndex row = index(at, 0);
    emit dataChanged(row, row);
}

void Messages::changed()
{
    if (m->changeDepth == 0) {
        notifyUpdate();
    }
}

}  // namespace Zorv
