#pragma once

#include "core/message.h"

#include <vector>

namespace Zorv {

/// A sequence of messages with a gap, where the text is being edited.
///
/// Messages in front of the gap hold their line; those behind it hold it less
/// a common offset. So inserting, removing and moving lines at the gap costs
/// nothing for all other messages; moving the gap costs its distance.
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

    /// Moves the lines of all messages from `first` on.
    void shiftLines(int first, int by);

private:
    bool inFront(int index) const { return index < static_cast<int>(m_front.size()); }
    size_t backIndex(int index) const { return static_cast<size_t>(size() - 1 - index); }
    void moveGap(int index);

    std::vector<Message> m_front;
    std::vector<Message> m_back;  ///< from the last message to the gap
    int m_offset = 0;             ///< to be added to the lines in `m_back`
};

}  // namespace Zorv
