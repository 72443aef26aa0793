#pragma once

#include <QCoreApplication>
#include <QRandomGenerator>
#include <QTest>

#include <algorithm>
#include <utility>
#include <vector>

/// Does things at random, each with its share of all, and looks now and then for a fault.
///
/// `Self` derives from it, and has `tidy()`, called after each, and `fault()`, what is wrong for a
/// person, empty for nothing.
template <class Self>
class MonkeyOf
{
public:
    using Shares = std::vector<std::pair<int, void (Self::*)()>>;

    /// With ZORV_TEST_SEED it goes another way than its own.
    MonkeyOf(quint32 seed, const Shares& actions)
        : m_seed(seed + quint32(qEnvironmentVariableIntValue("ZORV_TEST_SEED"))), m_actions(actions)
    {
        random.seed(m_seed);
        for (const auto& action : actions) {
            m_weight += action.first;
        }
    }

    /// Looks every so many events.
    void survive(int events, int every = 100)
    {
        qInfo("seed %u", m_seed);
        for (int i = 1; i <= events; ++i) {
            act();
            if (i % every == 0) {
                QCoreApplication::processEvents();
                const QString found = self()->fault();
                QVERIFY2(found.isEmpty(),
                         qPrintable(QStringLiteral("event %1: %2").arg(i).arg(found)));
            }
        }
    }

protected:
    int number(int end) { return random.bounded(std::max(end, 1)); }
    bool chance(int of) { return number(of) == 0; }
    template <class Value, std::size_t count>
    Value anyOf(const Value (&values)[count])
    {
        return values[number(int(count))];
    }

    QRandomGenerator random;

private:
    Self* self() { return static_cast<Self*>(this); }

    void act()
    {
        int chosen = number(m_weight);
        for (const auto& [share, action] : m_actions) {
            if ((chosen -= share) < 0) {
                (self()->*action)();
                break;
            }
        }
        self()->tidy();
    }

    quint32 m_seed;
    Shares m_actions;
    int m_weight = 0;
};
