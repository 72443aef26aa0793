#pragma once

#include "family/check/gamecheck.h"

#include <QMap>
#include <QObject>

#include <memory>

namespace Operations {

/// Checks a game in a background thread, for the window.
///
/// The thread gets copies of unsaved work and reads the rest from disk. It looks at the disk again
/// every few seconds. Results arrive in pieces while the event loop runs. Main thread only.
class BackgroundCheck : public QObject
{
    Q_OBJECT

public:
    explicit BackgroundCheck(QObject* parent = nullptr);

    /// Waits until the check of the current project ends.
    ~BackgroundCheck() override;

    /// Restarts with the game in a folder; empty for none. Texts and assets that were set are
    /// forgotten.
    void setGame(const QString& folder);

    /// @name Changes, as in `Family::GameCheck`
    /// @{
    void setText(const QString& path, const std::shared_ptr<const Family::SourceText>& text);
    void setAssets(const QString& path, const Family::FactStore::Assets& assets);
    void lookAt(const QString& path);
    void forgetAll();
    void prefer(const QStringList& mainFiles);
    /// @}

    /// The folder that file names are relative to; empty without a game.
    QString folder() const;

    /// Looks at the disk now.
    void look();

    /// False while work is pending. Until then problems may be missing or outdated.
    bool isDone() const;

    /// Lets the thread work and collects its results until nothing is pending. False if that takes
    /// longer than `milliseconds`.
    bool waitForDone(int milliseconds);

    /// The problems of each file that has any. Keys are file names relative to the game.
    const QMap<QString, Family::Problems>& problems() const { return m_problems; }

    /// What is known of each project, by main file; its problems are left out.
    const QHash<QString, Family::ProjectFindings>& projects() const { return m_projects; }

signals:
    /// The problems of these files have changed.
    void changed(const QStringList& files);

    /// `isDone()` has changed.
    void stateChanged();

private:
    struct Worker;

    void post(const std::function<void(Family::GameCheck&)>& task);
    void take(const Family::CheckNews& news, quint64 taken, bool isIdle);
    void setDone(bool isDone);
    void stop();

    std::unique_ptr<Worker> m_worker;  // null without a game
    QMap<QString, Family::Problems> m_problems;
    QHash<QString, Family::ProjectFindings> m_projects;
    quint64 m_posted = 0;
    bool m_isDone = true;
};

}  // namespace Operations
