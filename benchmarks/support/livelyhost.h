#pragma once

#include "operations/hostinterface.h"

#include <zorv/core/progressreporter.h>

#include <QCoreApplication>

namespace Bench {

/// Answers as the window does: events are processed at each step.
class LivelyProgress final : public Zorv::ProgressReporter
{
public:
    void update(int, int) override { QCoreApplication::processEvents(); }
    void finish() override { delete this; }
};

/// The host of a benchmark that measures how long the window does not answer.
class LivelyHost : public Operations::HostInterface
{
public:
    using HostInterface::HostInterface;
    Zorv::ProgressReporter* progress(const QString&, int) override { return new LivelyProgress; }
};

}  // namespace Bench
