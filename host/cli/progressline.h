#pragma once

#include <zorv/core/progressreporter.h>

#include <QElapsedTimer>
#include <QString>

namespace Cli {

/// The state of a piece of work on the last line of the terminal: its title and
/// how far it is. Nothing is drawn if standard error is no terminal. A signal that
/// asks the program to end gives the work up; `NotedSignals` has to catch it.
class ProgressLine final : public Zorv::ProgressReporter
{
public:
    explicit ProgressLine(const QString& title);

    void update(int value, int maximum) override;
    bool isCanceled() const override;

    /// Wipes the line out, and deletes the object.
    void finish() override;

private:
    void draw(int value);

    QString m_title;
    bool m_isDrawn;
    int m_maximum = 0;
    QElapsedTimer m_sinceDrawn;
};

}  // namespace Cli
