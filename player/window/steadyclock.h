#pragma once

#include <QElapsedTimer>
#include <QTimer>

namespace Player {

/// Emits 60 ticks a second. Late ticks are caught up, but after a longer pause the clock continues
/// from the current time.
class SteadyClock : public QObject
{
    Q_OBJECT

public:
    static constexpr int TicksASecond = 60;

    explicit SteadyClock(QObject* parent = nullptr);

    void start();
    void stop();

signals:
    void ticked();

private:
    void look();
    void plan();
    qint64 dueTime() const;

    QTimer m_timer;
    QElapsedTimer m_time;
    qint64 m_start = 0;  // in nanoseconds
    qint64 m_ticks = 0;  // since then
};

}  // namespace Player
