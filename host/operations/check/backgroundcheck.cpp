#include "operations/check/backgroundcheck.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QElapsedTimer>
#include <QMutex>
#include <QThread>
#include <QWaitCondition>

#include <algorithm>
#include <atomic>

namespace Operations {

using Family::CheckNews;
using Family::GameCheck;

namespace {

using Task = std::function<void(GameCheck&)>;

constexpr int NewsInterval = 100;  // milliseconds
constexpr int LookInterval = 2000;

/// Looking at the disk takes at most this fraction of the time: 1/50.
constexpr int LookShare = 50;

}  // namespace

/// The worker thread. It runs queued tasks between two projects. Tasks are numbered, and results
/// are reported with the number of the last task they include, so the main thread knows if they are
/// up to date.
struct BackgroundCheck::Worker : public QThread
{
    Worker(BackgroundCheck* owner, const QString& path)
        : q(owner), check(path), folder(check.folder())
    {
    }

    void run() override;
    void post(const Task& task);
    void stop();
    bool waitForIdle(int milliseconds, quint64 posted);

    void takeTasks();
    void look();
    void tell(bool isIdle);
    void sleep();

    BackgroundCheck* q;
    GameCheck check;
    const QString folder;
    QMutex mutex;
    QWaitCondition news;
    QWaitCondition idle;
    QVector<Task> tasks;
    quint64 taken = 0;
    quint64 idleAfter = 0;
    quint64 toldUpTo = 0;
    bool wasIdle = false;
    std::atomic_bool isStopping{false};
    int lookInterval = LookInterval;
    QElapsedTimer sinceNews;
    QElapsedTimer sinceLook;
};

void BackgroundCheck::Worker::run()
{
    sinceNews.start();
    look();
    while (!isStopping) {
        takeTasks();
        if (!check.isDone()) {
            check.check();
            if (sinceNews.hasExpired(NewsInterval)) {
                tell(false);
            }
            continue;
        }
        tell(true);
        sleep();
        if (sinceLook.hasExpired(lookInterval)) {
            look();
        }
    }
}

void BackgroundCheck::Worker::post(const Task& task)
{
    const QMutexLocker lock(&mutex);
    tasks.append(task);
    news.wakeAll();
}

void BackgroundCheck::Worker::stop()
{
    {
        const QMutexLocker lock(&mutex);
        isStopping = true;
        news.wakeAll();
    }
    wait();
}

bool BackgroundCheck::Worker::waitForIdle(int milliseconds, quint64 posted)
{
    const QDeadlineTimer deadline(milliseconds);
    const QMutexLocker lock(&mutex);
    while (idleAfter < posted) {
        if (!idle.wait(&mutex, deadline)) {
            return false;
        }
    }
    return true;
}

void BackgroundCheck::Worker::takeTasks()
{
    QVector<Task> now;
    {
        const QMutexLocker lock(&mutex);
        now.swap(tasks);
        taken += quint64(now.size());
    }
    for (const Task& task : qAsConst(now)) {
        task(check);
    }
}

void BackgroundCheck::Worker::look()
{
    QElapsedTimer timer;
    timer.start();
    check.look();
    lookInterval = std::max(LookInterval, int(timer.elapsed()) * LookShare);
    sinceLook.start();
}

void BackgroundCheck::Worker::tell(bool isIdle)
{
    sinceNews.start();
    const CheckNews found = check.takeNews();
    if (found.isEmpty() && wasIdle == isIdle && toldUpTo == taken) {
        return;
    }
    wasIdle = isIdle;
    toldUpTo = taken;
    QMetaObject::invokeMethod(
        q, [this, found, isIdle, upTo = taken] { q->take(found, upTo, isIdle); },
        Qt::QueuedConnection);
    const QMutexLocker lock(&mutex);
    if (isIdle && tasks.isEmpty()) {
        idleAfter = taken;
        idle.wakeAll();
    }
}

void BackgroundCheck::Worker::sleep()
{
    const QMutexLocker lock(&mutex);
    if (tasks.isEmpty() && !isStopping) {
        news.wait(&mutex, QDeadlineTimer(std::max(0, lookInterval - int(sinceLook.elapsed()))));
    }
}

BackgroundCheck::BackgroundCheck(QObject* parent) : QObject(parent) {}

BackgroundCheck::~BackgroundCheck()
{
    stop();
}

void BackgroundCheck::stop()
{
    if (m_worker) {
        m_worker->stop();
        m_worker.reset();
        // Results still in the event queue belong to the old game.
        QCoreApplication::removePostedEvents(this, QEvent::MetaCall);
    }
}

void BackgroundCheck::setGame(const QString& folder)
{
    stop();
    const QStringList files = m_problems.keys();
    m_problems.clear();
    m_projects.clear();
    if (!files.isEmpty()) {
        emit changed(files);
    }
    if (folder.isEmpty()) {
        setDone(true);
        return;
    }
    m_worker = std::make_unique<Worker>(this, folder);
    m_posted = 0;
    m_worker->start(QThread::LowPriority);
    look();
}

void BackgroundCheck::post(const std::function<void(GameCheck&)>& task)
{
    if (m_worker) {
        ++m_posted;
        m_worker->post(task);
        setDone(false);
    }
}

void BackgroundCheck::setText(const QString& path,
                              const std::shared_ptr<const Family::SourceText>& text)
{
    post([path, text](GameCheck& check) { check.setText(path, text); });
}

void BackgroundCheck::setAssets(const QString& path, const Family::FactStore::Assets& assets)
{
    post([path, assets](GameCheck& check) { check.setAssets(path, assets); });
}

void BackgroundCheck::lookAt(const QString& path)
{
    post([path](GameCheck& check) { check.lookAt(path); });
}

void BackgroundCheck::forgetAll()
{
    post([](GameCheck& check) { check.forgetAll(); });
}

void BackgroundCheck::prefer(const QStringList& mainFiles)
{
    post([mainFiles](GameCheck& check) { check.prefer(mainFiles); });
}

void BackgroundCheck::look()
{
    post([](GameCheck& check) { check.look(); });
}

QString BackgroundCheck::folder() const
{
    return m_worker ? m_worker->folder : QString();
}

bool BackgroundCheck::isDone() const
{
    return m_isDone;
}

bool BackgroundCheck::waitForDone(int milliseconds)
{
    const bool isIdle = !m_worker || m_worker->waitForIdle(milliseconds, m_posted);
    QCoreApplication::sendPostedEvents(this, QEvent::MetaCall);
    return isIdle && m_isDone;
}

void BackgroundCheck::take(const CheckNews& found, quint64 taken, bool isIdle)
{
    for (auto it = found.files.cbegin(); it != found.files.cend(); ++it) {
        if (it.value().isEmpty()) {
            m_problems.remove(it.key());
        } else {
            m_problems.insert(it.key(), it.value());
        }
    }
    for (auto it = found.projects.cbegin(); it != found.projects.cend(); ++it) {
        m_projects.insert(it.key(), it.value());
    }
    for (const QString& gone : found.goneProjects) {
        m_projects.remove(gone);
    }
    if (!found.files.isEmpty()) {
        emit changed(found.files.keys());
    }
    setDone(isIdle && taken == m_posted);
}

void BackgroundCheck::setDone(bool isDone)
{
    if (isDone != m_isDone) {
        m_isDone = isDone;
        emit stateChanged();
    }
}

}  // namespace Operations
