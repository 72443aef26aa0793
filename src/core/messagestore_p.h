#pragma once

#include "core/message.h"

#include <vector>

namespace Zorv {

/// A gap buffer of messages: the gap is where the text is being edited.
///
/// Messages before the gap store their line. Messages behind it store their
/// line minus a common offset. So inserting, removing and moving lines at the
/// gap does not touch the other messages. Moving the gap costs as much as its
/// distance.
class MessageStore
{
public:
    int size() const { return static_cast<int>(m_front.size() + m_back.size()); }

    int lineAt(int index) const;
    Message at(int index) const;
    void set(int index, Message message);
    void insert(int index, Message message);
    void remove(int first, int count);
    void clear();

    /// Moves the lines of all messages from index `first` on.
    void shiftLines(int first, int by);

private:
    bool inFront(int index) const { return index < static_cast<int>(m_front.size()); }
    size_t backIndex(int index) const { return static_cast<size_t>(size() - 1 - index); }
    void moveGap(int index);

    std::vector<Message> m_front;
    std::vector<Message> m_back;  ///< in reverse order: the last message comes first
    int m_offset = 0;             ///< add this to the lines in `m_back`
};

}  // namespace Zorv
