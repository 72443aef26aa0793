#pragma once

#include <zorv/editors/code/codefind.h>

#include <QObject>
#include <QTimer>
#include <QVector>

namespace App {

/// Finds all matches in a text, a few milliseconds at a time, so that a large text does not block
/// the window.
class MatchCounter : public QObject
{
    Q_OBJECT

public:
    /// The search stops at this many matches.
    static constexpr int MaxCount = 200000;

    struct Place
    {
        int start;
        int length;
    };

    explicit MatchCounter(QObject* parent = nullptr);

    /// Restarts with a text of `CodeFind::searchableText()`.
    void start(const Zorv::CodeFind& find, const QString& text);

    /// Discards all matches; `isDone()` is false afterwards.
    void stop();

    bool isStarted() const { return m_isDone || m_timer->isActive(); }
    bool isDone() const { return m_isDone; }

    /// True if the text may have more matches than counted.
    bool isCapped() const { return m_places.size() >= MaxCount; }
    int count() const { return m_places.size(); }

    /// The index of the match at a place, from 0; -1 if there is none or it is not counted yet.
    int indexOf(const Place& place) const;

    /// True for the last counted match, if there may be more.
    bool isLastOfMore(const Place& place) const;

    /// The last match that starts before a place, null for none. Counts up to there at once.
    const Place* lastBefore(int place);

signals:
    /// More matches were counted, or all.
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
