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

/// A code file of a game to process.
struct GameText
{
    QString path;

    /// Unsaved text that replaces the file; null for the file itself.
    std::shared_ptr<const QString> text;
};

/// The result for one file; null if there is none or the file no longer exists.
struct GameFinding
{
    QString path;
    std::shared_ptr<const void> result;
};

/// Processes every code file of a game in worker threads, and again whenever one changes, as a text
/// in the window or as a file on disk.
///
/// Results arrive in small pieces while the event loop runs. The first pass delivers them in path
/// order and omits empty ones. After that, each changed result is delivered. Main thread only,
/// except for the work itself.
class GameTexts : public QObject
{
    Q_OBJECT

public:
    /// Runs in any thread; must end early when the flag is set.
    using Work = std::function<std::shared_ptr<const void>(const GameText&, const StopFlag&)>;

    /// Creates the work function of one thread, in that thread.
    using WorkMaker = std::function<Work()>;

    explicit GameTexts(QObject* parent = nullptr);

    /// Waits for the files that are being processed.
    ~GameTexts() override;

    /// Sets the game folder; empty for none. Texts are forgotten, and running work stops.
    void setGame(const QString& folder);
    const QString& folder() const { return m_folder; }

    /// Sets a text that replaces a file from now on; null for the file itself. The file need not
    /// exist, nor be in the game.
    void setText(const QString& path, const std::shared_ptr<const QString>& text);

    /// Restarts. No results of earlier work arrive after this.
    void start(const WorkMaker& maker, FileKinds kinds);
    void stop();

    /// Looks at the disk now.
    void look();

    /// While on, looks at the disk every few seconds. Looking takes at most a fiftieth of the time.
    void setWatching(bool isWatching);

    /// True if no work is pending and all results were delivered.
    bool isDone() const { return m_isDone; }

    /// The number of files to process; 0 while it is not known yet.
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
