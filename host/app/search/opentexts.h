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

/// Hands texts that are not saved to a `GameTexts`, a moment after each edit, so that they are
/// searched as they are on screen. Of several documents of a file the one with changes counts.
class OpenTexts : public QObject
{
    Q_OBJECT

public:
    /// Both outlive it.
    OpenTexts(const GameSession* session, Operations::GameTexts* texts, QObject* parent);

    /// Documents have come, or have other names.
    void watchAll();

    /// Hands over now what would be soon.
    void handOver();

private:
    void watch(Family::FamilyDocument* document);
    void changed(const QString& path);
    void handOver(const QString& path);

    const GameSession* m_session;
    Operations::GameTexts* m_texts;
    QTimer* m_timer;
    QHash<const QObject*, QString> m_watched;  // the path of each
    QSet<QString> m_changed;
};

}  // namespace App
