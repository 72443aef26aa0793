#pragma once

#include <QObject>
#include <QString>

namespace Operations {
class RecoveryKeeper;
struct AbandonedWork;
}  // namespace Operations

namespace Zorv {
class ProjectFile;
}

namespace App {

class CanvasInput;
struct WindowServices;

/// Stores recovery copies of a window's unsaved texts, sprites, sounds and canvases, and offers
/// those left behind by a process that no longer runs: at the start, and when their game is opened.
class WorkRecovery : public QObject
{
    Q_OBJECT

public:
    /// Copies are stored below `root`. The window must outlive this object.
    WorkRecovery(const WindowServices& services, const QString& root);

    Operations::RecoveryKeeper* keeper() const { return m_keeper; }

    /// Offers everything that was left.
    void offerAll();

private:
    void watchAll();
    void offerForGame();
    void offer(const QString& gameFolder);
    void restore(const QList<Operations::AbandonedWork>& works);
    bool openGame(const QList<Operations::AbandonedWork>& works);
    Zorv::ProjectFile* fileOf(const Operations::AbandonedWork& work, QString* error);
    Zorv::ProjectFile* bringBack(const Operations::AbandonedWork& work, QString* error);
    bool apply(const Operations::AbandonedWork& work, Zorv::ProjectFile* file, QString* error);
    void show(Zorv::ProjectFile* file);

    const WindowServices& m_services;
    CanvasInput* m_canvas = nullptr;  ///< null in a window without a sprite editor
    Operations::RecoveryKeeper* m_keeper;
    QString m_root;
    bool m_isOfferPending = false;
    int m_offers = 0;  ///< guard: games opened by an offer make no new one
};

}  // namespace App
