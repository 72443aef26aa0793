#pragma once

#include <zorv/editors/code/codefind.h>

#include <QObject>
#include <QTimer>
#include <QVector>

namespace App {

/// Finds all matches in a text, a few milliseconds at a time, so that a large text holds
/// nobody up.
class MatchCounter : public QObject
{
    Q_OBJECT

public:
    /// Beyond these no more are looked for.
    static constexpr int MaxCount = 200000;

    struct Place
    {
        int start;
        int length;
    };

    explicit MatchCounter(QObject* parent = nullptr);

    /// Begins anew with a text of `CodeFind::searchableText()`.
    void start(const Zorv::CodeFind& find, const QString& text);

    /// Forgets all, and is not done.
    void stop();

    bool isStarted() const { return m_isDone || m_timer->isActive(); }
    bool isDone() const { return m_isDone; }

    /// True if there may be more matches than were counted.
    bool isCapped() const { return m_places.size() >= MaxCount; }
    int count() const { return m_places.size(); }

    /// Which match stands at a place, from 0; -1 for none, or one that is not counted yet.
    int indexOf(const Place& place) const;

    /// True for the last match that is counted, if there may be more.
    bool isLastOfMore(const Place& place) const;

    /// The last match that starts in front of a place, null for none. Counts up to there at
    /// once.
    const Place* lastBefore(int place);

signals:
    /// Some more are counted, or all.
    void progressed();

private:
    void countSlice();
    bool countOne();

    QRegularExpressionMatchIterator m_matches;
    QVector<Place> m_places;
    QTimer* m_timer;
    bool m_isDone = false;
};

}  // namespace App
