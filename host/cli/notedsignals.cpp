#include "cli/notedsignals.h"

#include "cli/endingsignals.h"

namespace Cli {

NotedSignals::NotedSignals(Patience patience) : m_patience(patience)
{
    ++(m_patience == Unlimited ? EndingSignals::s_late : EndingSignals::s_soon);
}

NotedSignals::~NotedSignals()
{
    --(m_patience == Unlimited ? EndingSignals::s_late : EndingSignals::s_soon);
}

int NotedSignals::received()
{
    return EndingSignals::received();
}

}  // namespace Cli
