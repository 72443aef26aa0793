#pragma once

#include <zorv/core/progressreporter.h>

#include <QElapsedTimer>
#include <QString>

namespace Cli {

/// Shows the title and progress of the running work on the last line of the terminal. Draws nothing
/// if standard error is not a terminal. A signal that asks the program to end cancels the work;
/// this needs a `NotedSignals`.
class ProgressLine final : public Zorv::ProgressReporter
{
public:
    explicit ProgressLine(const QString& title);

    void update(int value, int maximum) override;
    bool isCanceled() const override;

    /// Clears the line and deletes the object.
    void finish() override;

private:
    void draw(int value);

    QString m_title;
    bool m_isDrawn;
    int m_maximum = 0;
    QElapsedTimer m_sinceDrawn;
};

}  // namespace Cli
