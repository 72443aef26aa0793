#pragma once

#include "operations/find/codefiles.h"
#include "operations/find/textsearch.h"

#include <QHash>
#include <QObject>
#include <QVector>

#include <functional>
#include <memory>

class QThreadPool;
class QTimer;

namespace Operations {

/// A code file of a game, to be worked on.
struct GameText
{
    QString path;

    /// What stands in the place of the file; null for the file itself.
    std::shared_ptr<const QString> text;
};

/// What has come out of one; null for nothing, or a file that has gone.
struct GameFinding
{
    QString path;
    std::shared_ptr<const void> result;
};

/// Does something with every code file of a game in other threads, and again with those that
/// change, whether a text in the window or the file on the disk.
///
/// What comes out is handed over in small pieces while the event loop runs: first in the order of
/// the paths, what has nothing left out; then whatever has become something else. Main thread
/// only, but for the work.
class GameTexts : public QObject
{
    Q_OBJECT

public:
    /// Runs in any thread; ends early when the flag is set.
    using Work = std::function<std::shared_ptr<const void>(const GameText&, const StopFlag&)>;

    /// Makes the work of one thread, in that thread.
    using WorkMaker = std::function<Work()>;

    explicit GameTexts(QObject* parent = nullptr);

    /// Waits for the files that are being worked on.
    ~GameTexts() override;

    /// The game of a folder; empty for none. Texts are forgotten, and what goes on stops.
    void setGame(const QString& folder);
    const QString& folder() const { return m_folder; }

    /// What stands in the place of a file from now on; null for the file itself. The file need not
    /// be there, nor in the game.
    void setText(const QString& path, const std::shared_ptr<const QString>& text);

    /// Begins anew. Nothing of what went on before comes any more.
    void start(const WorkMaker& maker, FileKinds kinds);
    void stop();

    /// Looks at the disk now.
    void look();

    /// While it is on, looks at the disk every few seconds, a fiftieth of the time at most.
    void setWatching(bool isWatching);

    /// True if nothing is due: all that was found is handed over.
    bool isDone() const { return m_isDone; }

    /// How many files there are to work on; 0 while that is not known.
    int fileCount() const;

signals:
    void found(const QVector<Operations::GameFinding>& findings);

    /// `isDone()` or `fileCount()` has changed.
    void stateChanged();

private:
    struct Round;
    struct Run;

    void take(const std::shared_ptr<Run>& run);
    void setDone(bool isDone);

    std::unique_ptr<QThreadPool> m_pool;
    QTimer* m_timer;
    QString m_folder;
    QHash<QString, std::shared_ptr<const QString>> m_texts;
    std::shared_ptr<Run> m_run;  // null while nothing was started
    bool m_isDone = true;
    bool m_isWatching = false;
};

}  // namespace Operations

Q_DECLARE_METATYPE(Operations::GameFinding)
