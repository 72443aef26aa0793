#include "notedsignals.h"

#include <csignal>

namespace Cli {

namespace {

const int numbers[] = {SIGINT, SIGTERM, SIGHUP};

volatile std::sig_atomic_t s_signal = 0;

}  // namespace

NotedSignals::NotedSignals()
{
    for (int i = 0; i < Count; ++i) {
        m_old[i] = std::signal(numbers[i], [](int number) { s_signal = number; });
    }
}

NotedSignals::~NotedSignals()
{
    for (int i = 0; i < Count; ++i) {
        std::signal(numbers[i], m_old[i]);
    }
}

int NotedSignals::received()
{
    return s_signal;
}

}  // namespace Cli
