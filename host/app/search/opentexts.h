#pragma once

#include <QHash>
#include <QObject>
#include <QSet>

class QTimer;

namespace Family {
class FamilyDocument;
}

namespace Operations {
class GameTexts;
}

namespace App {

class GameSession;

/// Passes unsaved texts to a `GameTexts`, shortly after each edit, so that the search sees what is
/// on screen. If several documents show the same file, the modified one counts.
class OpenTexts : public QObject
{
    Q_OBJECT

public:
    /// Both outlive it.
    OpenTexts(const GameSession* session, Operations::GameTexts* texts, QObject* parent);

    /// Call after documents were opened or renamed.
    void watchAll();

    /// Passes pending texts on now.
    void handOver();

private:
    void watch(Family::FamilyDocument* document);
    void changed(const QString& path);
    void handOver(const QString& path);

    const GameSession* m_session;
    Operations::GameTexts* m_texts;
    QTimer* m_timer;
    QHash<const QObject*, QString> m_watched;  // path of each
    QSet<QString> m_changed;
};

}  // namespace App
