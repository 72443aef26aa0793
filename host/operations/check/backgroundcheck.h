#pragma once

#include "family/check/gamecheck.h"

#include <QMap>
#include <QObject>

#include <memory>

namespace Operations {

/// The check of a game beside the window: it goes on in a thread of its own.
///
/// The thread gets copies of what is not saved, and reads the rest from the disk, at which it looks
/// again every few seconds. What it finds comes in pieces, while the event loop runs. Main thread
/// only.
class BackgroundCheck : public QObject
{
    Q_OBJECT

public:
    explicit BackgroundCheck(QObject* parent = nullptr);

    /// Waits for the project that is being checked.
    ~BackgroundCheck() override;

    /// Begins anew with the game of a folder; empty for none. What stood in the place of files is
    /// forgotten.
    void setGame(const QString& folder);

    /// @name What has changed: as in `Family::GameCheck`
    /// @{
    void setText(const QString& path, const std::shared_ptr<const Family::SourceText>& text);
    void setAssets(const QString& path, const Family::FactStore::Assets& assets);
    void lookAt(const QString& path);
    void forgetAll();
    void prefer(const QStringList& mainFiles);
    /// @}

    /// The folder to which names are relative; empty without a game.
    QString folder() const;

    /// Looks at the disk now.
    void look();

    /// False while something is due: then problems may be missing, or gone already.
    bool isDone() const;

    /// Lets the thread work, and takes what it finds, until nothing is due. False if that takes
    /// longer than so many milliseconds.
    bool waitForDone(int milliseconds);

    /// The problems of each file that has any, by its name relative to the game.
    const QMap<QString, Family::Problems>& problems() const { return m_problems; }

    /// What is known of each project, by main file; its problems are left out.
    const QHash<QString, Family::ProjectFindings>& projects() const { return m_projects; }

signals:
    /// These files have other problems.
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
