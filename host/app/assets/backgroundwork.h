#pragma once

#include <QObject>

#include <functional>
#include <memory>
#include <vector>

namespace App {

/// Runs small jobs in worker threads, newest request first: what the user looks at now is more
/// urgent than what has scrolled away.
class BackgroundWork : public QObject
{
    Q_OBJECT

public:
    /// Takes the result in this object's thread; not called if the object was destroyed meanwhile.
    using Then = std::function<void()>;

    /// Runs in a worker thread; shares no mutable data.
    using Work = std::function<Then()>;

    explicit BackgroundWork(QObject* parent = nullptr);

    /// Does not wait for running jobs.
    ~BackgroundWork() override;

    void ask(const Work& work);

    /// Drops the jobs that have not started.
    void clear() { m_waiting.clear(); }

private:
    struct Gate;

    void start();

    std::shared_ptr<Gate> m_gate;
    std::vector<Work> m_waiting;
    int m_running = 0;
};

}  // namespace App
