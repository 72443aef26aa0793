#include "operations/find/gametexts.h"

#include "family/check/diskstate.h"

#include <QElapsedTimer>
#include <QMutex>
#include <QSet>
#include <QThread>
#include <QThreadPool>
#include <QTimer>
#include <QWaitCondition>

#include <algorithm>
#include <deque>
#include <vector>

// A run consists of rounds. The first round processes all files, each later one the files that
// changed meanwhile. One thread leads a round: it collects the files, works on them together with
// the others, and waits for those still working. A stopped run ends by itself; nobody waits for it.

namespace Operations {

using Family::DiskState;

namespace {

constexpr int LookInterval = 2000;  // milliseconds
constexpr int LookShare = 50;

/// The maximum number of results delivered in one turn of the event loop.
constexpr int MostAtOnce = 64;

}  // namespace

/// The files of one round.
struct GameTexts::Round
{
    std::vector<GameText> due;
    std::vector<GameFinding> findings;  // same indexes as `due`, also the next two
    std::vector<DiskState> states;
    std::vector<char> isReady;
    std::atomic_int next{0};
    size_t told = 0;  // this and the next are guarded by the mutex of the run
    int active = 0;
};

struct GameTexts::Run : std::enable_shared_from_this<Run>
{
    Run(GameTexts* owner, const WorkMaker& workMaker, FileKinds fileKinds)
        : q(owner), pool(owner->m_pool.get()), maker(workMaker), kinds(fileKinds),
          folder(owner->m_folder), texts(owner->m_texts)
    {
    }

    void begin();
    void lead();
    bool takeDue(Round* round);
    void addAll(Round* round);
    void addChanged(Round* round, const QSet<QString>& paths);
    void work(Round* round, const Work& doWork);
    void finish(Round* round, size_t index);
    void tell();

    GameTexts* const q;
    QThreadPool* const pool;
    const WorkMaker maker;
    const FileKinds kinds;
    const QString folder;
    StopFlag isStopped{false};
    std::atomic_int fileCount{0};
    std::atomic_int lookTime{0};

    // Only for the leading thread.
    QHash<QString, DiskState> states;
    bool isFirst = true;

    QMutex mutex;  // guards all members below
    QWaitCondition left;
    QHash<QString, std::shared_ptr<const QString>> texts;
    QSet<QString> changed;
    bool looks = true;
    bool isLed = false;
    std::deque<GameFinding> news;
    bool isTelling = false;
};

/// Call with the mutex locked, when there is work.
void GameTexts::Run::begin()
{
    if (!isLed) {
        isLed = true;
        pool->start([self = shared_from_this()] { self->lead(); });
    }
}

void GameTexts::Run::lead()
{
    const Work doWork = maker();
    for (auto round = std::make_shared<Round>(); takeDue(round.get());
         round = std::make_shared<Round>()) {
        const size_t count = round->due.size();
        const int others = std::min(pool->maxThreadCount(), int(count)) - 1;
        for (int i = 0; i < others; ++i) {
            pool->start([self = shared_from_this(), round] { self->work(round.get(), {}); });
        }
        work(round.get(), doWork);
        const QMutexLocker lock(&mutex);
        while (round->active > 0) {
            left.wait(&mutex);
        }
        for (size_t i = 0; i < count && !isStopped; ++i) {
            states.insert(round->due[i].path, round->states[i]);
        }
        isFirst = false;
    }
}

/// False if there is no more work; then no thread leads any more.
bool GameTexts::Run::takeDue(Round* round)
{
    QMutexLocker lock(&mutex);
    while (!isStopped && round->due.empty() && (looks || !changed.isEmpty())) {
        const bool isLook = std::exchange(looks, false);
        const QSet<QString> paths = std::exchange(changed, {});
        if (isLook) {
            addAll(round);
        }
        addChanged(round, paths);
    }
    if (isStopped || round->due.empty()) {
        isLed = false;
        tell();
        return false;
    }
    round->findings.resize(round->due.size());
    round->states.resize(round->due.size());
    round->isReady.resize(round->due.size());
    return true;
}

void GameTexts::Run::addAll(Round* round)
{
    const auto known = texts;
    mutex.unlock();
    QElapsedTimer timer;
    timer.start();
    QStringList paths = codeFiles(folder, kinds);
    QSet<QString> there(paths.begin(), paths.end());
    for (auto it = known.cbegin(); it != known.cend(); ++it) {
        if (!there.contains(it.key()) && hasKind(kinds, Family::fileKindOf(it.key()))) {
            there.insert(it.key());
            paths.append(it.key());
        }
    }
    std::sort(paths.begin(), paths.end());
    fileCount = paths.size();
    for (const QString& path : qAsConst(paths)) {
        const auto text = known.value(path);
        if (isFirst || !states.contains(path) ||
            (!text && !(states.value(path) == DiskState::of(path)))) {
            round->due.push_back({path, text});
        }
    }
    for (auto it = states.begin(); it != states.end();) {
        if (there.contains(it.key())) {
            ++it;
        } else {
            round->due.push_back({it.key(), nullptr});
            it = states.erase(it);
        }
    }
    lookTime = int(timer.elapsed());
    mutex.lock();
}

void GameTexts::Run::addChanged(Round* round, const QSet<QString>& paths)
{
    for (const QString& path : paths) {
        const bool isThere =
            std::any_of(round->due.begin(), round->due.end(),
                        [&path](const GameText& each) { return each.path == path; });
        if (!isFirst && !isThere && hasKind(kinds, Family::fileKindOf(path))) {
            round->due.push_back({path, texts.value(path)});
        }
    }
}

/// The work of one thread, until the round is empty.
void GameTexts::Run::work(Round* round, const Work& leaderWork)
{
    {
        const QMutexLocker lock(&mutex);
        ++round->active;
    }
    const Work doWork = leaderWork ? leaderWork : maker();
    const int count = int(round->due.size());
    for (int i = round->next++; i < count && !isStopped; i = round->next++) {
        const GameText& text = round->due[size_t(i)];
        const DiskState state = DiskState::of(text.path);
        const bool isThere = text.text || !(state == DiskState());
        round->states[size_t(i)] = state;
        round->findings[size_t(i)] = {text.path, isThere ? doWork(text, isStopped) : nullptr};
        finish(round, size_t(i));
    }
    const QMutexLocker lock(&mutex);
    --round->active;
    left.wakeAll();
}

void GameTexts::Run::finish(Round* round, size_t index)
{
    const QMutexLocker lock(&mutex);
    round->isReady[index] = 1;
    for (; round->told < round->due.size() && round->isReady[round->told]; ++round->told) {
        const GameFinding& finding = round->findings[round->told];
        if (finding.result || !isFirst) {
            news.push_back(finding);
        }
    }
    if (!news.empty()) {
        tell();
    }
}

/// Call with the mutex locked.
void GameTexts::Run::tell()
{
    if (!isTelling && !isStopped) {
        isTelling = true;
        QMetaObject::invokeMethod(
            q, [owner = q, self = shared_from_this()] { owner->take(self); }, Qt::QueuedConnection);
    }
}

GameTexts::GameTexts(QObject* parent)
    : QObject(parent), m_pool(std::make_unique<QThreadPool>()), m_timer(new QTimer(this))
{
    m_pool->setMaxThreadCount(std::max(2, QThread::idealThreadCount()));
    m_timer->setSingleShot(true);
    connect(m_timer, &QTimer::timeout, this, &GameTexts::look);
}

GameTexts::~GameTexts()
{
    blockSignals(true);
    stop();
    m_pool->clear();
    m_pool->waitForDone();
}

void GameTexts::setGame(const QString& folder)
{
    stop();
    m_folder = folder;
    m_texts.clear();
}

void GameTexts::setText(const QString& path, const std::shared_ptr<const QString>& text)
{
    if (!text && !m_texts.contains(path)) {
        look();  // it was saved or reloaded
        return;
    }
    if (text) {
        m_texts.insert(path, text);
    } else {
        m_texts.remove(path);
    }
    if (m_run) {
        const QMutexLocker lock(&m_run->mutex);
        m_run->texts = m_texts;
        m_run->changed.insert(path);
        m_run->begin();
        setDone(false);
    }
}

void GameTexts::start(const WorkMaker& maker, FileKinds kinds)
{
    stop();
    if (m_folder.isEmpty()) {
        return;
    }
    m_run = std::make_shared<Run>(this, maker, kinds);
    const QMutexLocker lock(&m_run->mutex);
    m_run->begin();
    setDone(false);
}

void GameTexts::stop()
{
    m_timer->stop();
    if (m_run) {
        m_run->isStopped = true;
        m_run.reset();
    }
    setDone(true);
}

void GameTexts::look()
{
    if (m_run) {
        const QMutexLocker lock(&m_run->mutex);
        m_run->looks = true;
        m_run->begin();
        m_timer->stop();
    }
}

void GameTexts::setWatching(bool isWatching)
{
    if (isWatching && !m_isWatching) {
        look();
    }
    m_isWatching = isWatching;
}

int GameTexts::fileCount() const
{
    return m_run ? int(m_run->fileCount) : 0;
}

void GameTexts::take(const std::shared_ptr<Run>& run)
{
    QVector<GameFinding> part;
    bool isIdle = false;
    {
        const QMutexLocker lock(&run->mutex);
        run->isTelling = false;
        if (run != m_run) {
            return;
        }
        const auto end = run->news.begin() + std::min<int>(int(run->news.size()), MostAtOnce);
        std::copy(run->news.begin(), end, std::back_inserter(part));
        run->news.erase(run->news.begin(), end);
        if (!run->news.empty()) {
            run->tell();
        }
        isIdle = run->news.empty() && !run->isLed;
    }
    if (!part.isEmpty()) {
        emit found(part);
    }
    if (run != m_run) {
        return;  // the receiver has restarted
    }
    if (isIdle && m_isWatching && !m_timer->isActive()) {
        m_timer->start(std::max(LookInterval, LookShare * int(run->lookTime)));
    }
    setDone(isIdle);
}

void GameTexts::setDone(bool isDone)
{
    if (isDone != m_isDone) {
        m_isDone = isDone;
        emit stateChanged();
    }
}

}  // namespace Operations
