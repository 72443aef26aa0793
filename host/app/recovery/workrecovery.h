#pragma once

#include <QObject>
#include <QString>

namespace Family {
class FamilyDocument;
}  // namespace Family

namespace Operations {
class RecoveryKeeper;
struct AbandonedText;
}  // namespace Operations

namespace App {

class MainWindow;

/// Keeps the unsaved texts of a window safe, and offers those that a process
/// that is gone has left: at the start, and for a game when it is opened.
class WorkRecovery : public QObject
{
    Q_OBJECT

public:
    /// Copies are below `root`. The window must outlive the object.
    WorkRecovery(MainWindow* window, const QString& root);

    Operations::RecoveryKeeper* keeper() const { return m_keeper; }

    /// Offers all that is there.
    void offerAll();

private:
    void watchAll();
    void offerForGame();
    void offer(const QString& gameFolder);
    void restore(const QList<Operations::AbandonedText>& texts);
    bool openGame(const QList<Operations::AbandonedText>& texts);
    Family::FamilyDocument* documentOf(const Operations::AbandonedText& text, QString* error);

    MainWindow* m_window;
    Operations::RecoveryKeeper* m_keeper;
    QString m_root;
    bool m_isOfferPending = false;
    int m_offers = 0;  ///< games that are opened meanwhile raise no question
};

}  // namespace App
