#include "core/messagestore_p.h"

#include <utility>

namespace Zorv {

int MessageStore::lineAt(int index) const
{
    if (inFront(index)) {
        return m_front[static_cast<size_t>(index)].line;
    }
    return m_back[backIndex(index)].line + m_offset;
}

Message MessageStore::at(int index) const
{
    if (inFront(index)) {
        return m_front[static_cast<size_t>(index)];
    }
    Message message = m_back[backIndex(index)];
    message.line += m_offset;
    return message;
}

void MessageStore::set(int index, Message message)
{
    if (inFront(index)) {
        m_front[static_cast<size_t>(index)] = std::move(message);
        return;
    }
    message.line -= m_offset;
    m_back[backIndex(index)] = std::move(message);
}

void MessageStore::insert(int index, Message message)
{
    moveGap(index);
    m_front.push_back(std::move(message));
}

void MessageStore::remove(int first, int count)
{
    moveGap(first);
    m_back.resize(m_back.size() - static_cast<size_t>(count));
    if (m_back.empty()) {
        m_offset = 0;
    }
}

void MessageStore::clear()
{
    m_front.clear();
    m_back.clear();
    m_offset = 0;
}

void MessageStore::shiftLines(int first, int by)
{
    moveGap(first);
    if (!m_back.empty()) {
        m_offset += by;
    }
}

void MessageStore::moveGap(int index)
{
    while (index < static_cast<int>(m_front.size())) {
        m_back.push_back(std::move(m_front.back()));
        m_back.back().line -= m_offset;
        m_front.pop_back();
    }
    while (index > static_cast<int>(m_front.size())) {
        m_front.push_back(std::move(m_back.back()));
        m_front.back().line += m_offset;
        m_back.pop_back();
    }
    if (m_back.empty()) {
        m_offset = 0;
    }
}

}  // namespace Zorv
