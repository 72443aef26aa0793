#pragma once

#include "cli/notedsignals.h"
#include "operations/hostinterface.h"

namespace Cli {

/// Shows how far the work is, and lets Ctrl+C end it where every file is whole.
class ProgressHost final : public Operations::HostInterface
{
public:
    ProgressHost();

    Zorv::ProgressReporter* progress(const QString& title, int style) override;

private:
    NotedSignals m_signals;
};

}  // namespace Cli
