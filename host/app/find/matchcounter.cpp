#include "app/find/matchcounter.h"

#include <QElapsedTimer>

#include <algorithm>

// A zero-interval timer runs the search in slices of a few milliseconds and stores the matches in
// text order, so that lookups are binary searches. `lastBefore()` needs the matches before a place
// at once, and counts up to there without slices.

namespace App {

namespace {

constexpr int Slice = 8;  // milliseconds

bool startsBefore(const MatchCounter::Place& place, int start)
{
    return place.start < start;
}

}  // namespace

MatchCounter::MatchCounter(QObject* parent) : QObject(parent), m_timer(new QTimer(this))
{
    m_timer->setInterval(0);
    connect(m_timer, &QTimer::timeout, this, &MatchCounter::countSlice);
}

void MatchCounter::start(const Zorv::CodeFind& find, const QString& text)
{
    stop();
    m_matches = find.isValid() ? find.matches(text) : QRegularExpressionMatchIterator();
    m_timer->start();
}

void MatchCounter::stop()
{
    m_timer->stop();
    m_matches = {};
    m_places.clear();
    m_isDone = false;
}

int MatchCounter::indexOf(const Place& place) const
{
    const auto found =
        std::lower_bound(m_places.begin(), m_places.end(), place.start, startsBefore);
    const bool isThere =
        found != m_places.end() && found->start == place.start && found->length == place.length;
    return isThere ? int(found - m_places.begin()) : -1;
}

bool MatchCounter::isLastOfMore(const Place& place) const
{
    return isCapped() && place.start == m_places.last().start;
}

const MatchCounter::Place* MatchCounter::lastBefore(int place)
{
    while (!m_isDone && (m_places.isEmpty() || m_places.last().start < place)) {
        countOne();
    }
    const auto behind = std::lower_bound(m_places.cbegin(), m_places.cend(), place, startsBefore);
    return behind == m_places.cbegin() ? nullptr : &*(behind - 1);
}

bool MatchCounter::countOne()
{
    if (m_isDone || isCapped() || !m_matches.hasNext()) {
        m_isDone = true;
        m_matches = {};
        return false;
    }
    const QRegularExpressionMatch match = m_matches.next();
    m_places.append({match.capturedStart(), match.capturedLength()});
    return true;
}

void MatchCounter::countSlice()
{
    QElapsedTimer clock;
    clock.start();
    while (countOne() && clock.elapsed() < Slice) {
    }
    if (m_isDone) {
        m_timer->stop();
    }
    emit progressed();
}

}  // namespace App
