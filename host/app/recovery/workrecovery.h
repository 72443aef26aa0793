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

/// Keeps the unsaved texts, sprites, sounds and canvases of a window safe, and offers those that a
/// process that is gone has left: at the start, and for a game when it is opened.
class WorkRecovery : public QObject
{
    Q_OBJECT

public:
    /// Copies are below `root`. The window must outlive the object.
    WorkRecovery(const WindowServices& services, const QString& root);

    Operations::RecoveryKeeper* keeper() const { return m_keeper; }

    /// Offers all that is there.
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
    int m_offers = 0;  ///< games that are opened meanwhile raise no question
};

}  // namespace App
