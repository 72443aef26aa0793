#include "core/filewatchhandler.h"

namespace Zorv {

namespace {

FileWatchHandler* s_handler = nullptr;

}  // namespace

FileWatchHandler::~FileWatchHandler()
{
    if (s_handler == this) {
        s_handler = nullptr;
    }
}

FileWatchHandler* FileWatchHandler::instance()
{
    return s_handler;
}

void FileWatchHandler::setInstance(FileWatchHandler* handler)
{
    s_handler = handler;
}

}  // namespace Zorv
