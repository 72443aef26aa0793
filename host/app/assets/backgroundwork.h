#pragma once

#include <QObject>

#include <functional>
#include <memory>
#include <vector>

namespace App {

/// Small pieces of work that other threads do while the window goes on, the newest wish first: what
/// the person looks at now comes before what has scrolled away.
class BackgroundWork : public QObject
{
    Q_OBJECT

public:
    /// What is done with the result, in this thread; not if this object has died meanwhile.
    using Then = std::function<void()>;

    /// Done in another thread; shares nothing that changes.
    using Work = std::function<Then()>;

    explicit BackgroundWork(QObject* parent = nullptr);

    /// Does not wait for what is on its way.
    ~BackgroundWork() override;

    void ask(const Work& work);

    /// Forgets what has not begun.
    void clear() { m_waiting.clear(); }

private:
    struct Gate;

    void start();

    std::shared_ptr<Gate> m_gate;
    std::vector<Work> m_waiting;
    int m_running = 0;
};

}  // namespace App
