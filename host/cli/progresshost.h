#pragma once

#include "cli/notedsignals.h"
#include "operations/hostinterface.h"

namespace Cli {

/// Shows progress, and lets Ctrl+C end the work at a point where every file is complete.
class ProgressHost final : public Operations::HostInterface
{
public:
    ProgressHost();

    Zorv::ProgressReporter* progress(const QString& title, int style) override;

private:
    NotedSignals m_signals;
};

}  // namespace Cli
