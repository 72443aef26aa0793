#include "cli/endingsignals.h"

#include <zorv/core/files.h>

#include <cerrno>
#include <csignal>
#include <poll.h>
#include <thread>
#include <unistd.h>

// The signal handler only writes the number of the signal to a pipe: little else is allowed in a
// handler. A detached thread reads the pipe. Unless a NotedSignals with unlimited patience exists,
// the thread ends the program. If one with a moment's patience exists, it first waits that long for
// the work to end by itself; a second signal cuts the wait short. To end, it deletes unfinished
// files and raises the signal again with its default action, so that the parent process sees the
// true reason.

namespace Cli {

namespace {

constexpr int MomentMilliseconds = 300;

int s_pipe[2] = {-1, -1};
volatile std::sig_atomic_t s_signal = 0;

void note(int number)
{
    const int error = errno;
    s_signal = number;
    const char byte = char(number);
    const ssize_t written = write(s_pipe[1], &byte, 1);
    (void)written;
    errno = error;
}

int nextSignal()
{
    char byte = 0;
    while (read(s_pipe[0], &byte, 1) < 0 && errno == EINTR) {
    }
    return byte;
}

bool isAskedAgain()
{
    pollfd waiting{s_pipe[0], POLLIN, 0};
    return poll(&waiting, 1, MomentMilliseconds) > 0;
}

[[noreturn]] void end(int number)
{
    Zorv::removeUnfinished();
    std::signal(number, SIG_DFL);
    kill(getpid(), number);
    _exit(128 + number);
}

void waitForSignals()
{
    for (;;) {
        const int number = nextSignal();
        if (EndingSignals::s_late == 0) {
            if (EndingSignals::s_soon > 0) {
                isAskedAgain();
            }
            end(number);
        }
    }
}

}  // namespace

std::atomic<int> EndingSignals::s_soon{0};
std::atomic<int> EndingSignals::s_late{0};

void EndingSignals::watch()
{
    if (s_pipe[0] >= 0 || pipe(s_pipe) != 0) {
        return;
    }
    std::thread(waitForSignals).detach();
    struct sigaction action = {};
    action.sa_handler = note;
    action.sa_flags = SA_RESTART;
    for (const int number : {SIGINT, SIGTERM, SIGHUP}) {
        struct sigaction old;
        if (sigaction(number, nullptr, &old) == 0 && old.sa_handler != SIG_IGN) {
            sigaction(number, &action, nullptr);
        }
    }
}

int EndingSignals::received()
{
    return s_signal;
}

}  // namespace Cli
