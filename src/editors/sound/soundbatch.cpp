#include "editors/sound/soundbatch_p.h"

#include "cache/sound.h"
#include "cache/sounds.h"
#include "core/interface.h"
#include "core/progressreporter.h"
#include "media/pcmsamples_p.h"

#include <QFutureWatcher>
#include <QThreadPool>
#include <QTimer>
#include <QtConcurrent>

namespace Zorv {

namespace {

constexpr int LookInterval = 30;  // milliseconds

template <class Result>
Result madeElsewhere(const std::function<Result()>& make)
{
    QEventLoop loop;
    QFutureWatcher<Result> watcher;
    QObject::connect(&watcher, &QFutureWatcherBase::finished, &loop, &QEventLoop::quit);
    watcher.setFuture(QtConcurrent::run(make));
    loop.exec(QEventLoop::ExcludeUserInputEvents);
    return watcher.result();
}

}  // namespace

SoundSample readElsewhere(const std::function<SoundSample()>& reader)
{
    return madeElsewhere<SoundSample>(reader);
}

ReadySample readySample(const Sounds* to, const std::function<SoundSample()>& reader)
{
    return madeElsewhere<ReadySample>([reader, packer = to->packer()] {
        ReadySample ready{reader(), {}};
        // Drop an incomplete frame at the end. The list would do that later, and would have to pack
        // again.
        const int frame = frameBytesOf(ready.sample);
        ready.sample.data.chop(frame > 0 ? ready.sample.data.size() % frame : 0);
        if (packer) {
            ready.packed = packer(ready.sample.data);
        }
        return ready;
    });
}

std::function<SoundSample()> readerOf(const Sound& sound)
{
    return [info = sound.sampleInfo(), reader = sound.sampleReader()] {
        SoundSample sample;
        static_cast<SampleInfo&>(sample) = info;
        sample.data = reader();
        return sample;
    };
}

SoundBatch::SoundBatch(Sounds* sounds, const QVector<int>& rows, Work work)
    : m_sounds(sounds), m_rows(rows), m_work(std::move(work))
{
    m_turn.setSingleShot(true);
    m_turn.setInterval(0);
    connect(&m_turn, &QTimer::timeout, this, &SoundBatch::turn);
    connect(sounds, &QAbstractItemModel::rowsInserted, this, &SoundBatch::cancel);
    connect(sounds, &QAbstractItemModel::rowsRemoved, this, &SoundBatch::cancel);
    connect(sounds, &QAbstractItemModel::rowsMoved, this, &SoundBatch::cancel);
    connect(sounds, &QAbstractItemModel::layoutChanged, this, &SoundBatch::cancel);
    connect(sounds, &QAbstractItemModel::modelReset, this, &SoundBatch::cancel);
    connect(sounds, &QObject::destroyed, this, &SoundBatch::cancel);
}

SoundBatch::~SoundBatch()
{
    *m_isCanceled = true;
}

void SoundBatch::run(const QString& title)
{
    m_reporter = Interface::instance()->progress(title, 0);
    m_reporter->update(0, m_rows.size());
    QTimer timer;
    connect(&timer, &QTimer::timeout, this, &SoundBatch::look);
    timer.start(LookInterval);
    if (!m_rows.isEmpty()) {
        m_turn.start();
        m_loop.exec();
    }
    m_reporter->finish();
    m_reporter = nullptr;
}

/// Allows one more than the number of threads, so that no thread waits for the main thread.
bool SoundBatch::canStart() const
{
    return m_running <= QThreadPool::globalInstance()->maxThreadCount() && m_next < m_rows.size() &&
           !*m_isCanceled && m_sounds;
}

/// Stores or starts one sound per turn, so that the window stays responsive.
void SoundBatch::turn()
{
    if (!m_ready.isEmpty()) {
        const auto [watcher, row] = m_ready.takeFirst();
        --m_running;
        putBack(watcher->result(), row);
        watcher->deleteLater();
    } else if (canStart()) {
        start(m_rows[m_next++]);
    }
    if (!m_ready.isEmpty() || canStart()) {
        m_turn.start();
    } else if (m_running == 0) {
        m_loop.quit();
    }
}

void SoundBatch::start(int row)
{
    const Sound* sound = m_sounds->sound(row);
    if (!sound) {
        return;
    }
    auto* watcher = new Watcher(this);
    connect(watcher, &QFutureWatcherBase::finished, this, [this, watcher, row] {
        m_ready.append({watcher, row});
        m_turn.start();
    });
    ++m_running;
    watcher->setFuture(QtConcurrent::run([work = m_work, reader = readerOf(*sound),
                                          packer = m_sounds->packer(), isCanceled = m_isCanceled] {
        Made made;
        made.conversion = work(reader(), isCanceled.get());
        if (packer && made.conversion.outcome == SoundConversion::Done && !*isCanceled) {
            made.packed = packer(made.conversion.sample.data);
        }
        return made;
    }));
}

void SoundBatch::putBack(const Made& made, int row)
{
    const SoundConversion& result = made.conversion;
    Sound* sound = m_sounds && !*m_isCanceled ? m_sounds->sound(row) : nullptr;
    if (sound && result.outcome == SoundConversion::Done) {
        sound->setSample(result.sample, result.sample.data);
    } else if (!soundConversionText(result.outcome).isEmpty()) {
        ++m_failed;
        const QString reason = soundConversionText(result.outcome);
        if (!m_reasons.contains(reason)) {
            m_reasons.append(reason);
        }
    }
    if (m_reporter) {
        m_reporter->update(++m_done, 0);
    }
    look();
}

/// Running workers have copies of all they need, so there is no need to wait.
void SoundBatch::cancel()
{
    *m_isCanceled = true;
    m_loop.quit();
}

void SoundBatch::look()
{
    if (m_reporter && m_reporter->isCanceled()) {
        cancel();
    }
}

}  // namespace Zorv
