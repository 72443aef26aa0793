#pragma once

#include "core/messages.h"
#include "core/messagestore_p.h"

namespace Zorv {

class MessagesPrivate
{
public:
    void count(Message::Type type, int by);

    MessageList* list = nullptr;
    ProjectFile* file = nullptr;
    MessageStore messages;
    int counts[3] = {0, 0, 0};
    int changeDepth = 0;
    int insertHint = 0;
};

}  // namespace Zorv
