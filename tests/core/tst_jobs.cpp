#include "core/jobs.h"
#include "support/testinterface.h"
#include "support/testtable.h"

#include <QThreadPool>
#include <QtTest>

#include <atomic>

using namespace Zorv;

class TestJobs : public QObject
{
    Q_OBJECT

private slots:
    void resultsComeInOrder_data();
    void resultsComeInOrder();
    void fewLargePiecesAreUnderWay();
    void nothingBeginsOnceGivenUp();
    void eventsHaveTheirTurn();
};

namespace {

int threads()
{
    return QThreadPool::globalInstance()->maxThreadCount();
}

}  // namespace

void TestJobs::resultsComeInOrder_data()
{
    columns<int, int>("count", "cancelAfter");
    QTest::newRow("none") << 0 << -1;
    QTest::newRow("fewer than threads") << 1 << -1;
    QTest::newRow("many") << 500 << -1;
    QTest::newRow("given up") << 500 << 3;
}

// Whatever order they are done in; only a few are on their way, and none is behind the end.
void TestJobs::resultsComeInOrder()
{
    const auto [count, cancelAfter] = fetched<int, int>();
    TestInterface host;
    host.cancelAfter = cancelAfter;
    std::atomic_int begun{0};
    std::atomic_int ended{0};
    int most = 0;
    int taken = 0;
    const auto prepare = [&](int i) -> std::function<int()> {
        return [&begun, &ended, i] {
            ++begun;
            QThread::usleep(i % 7 == 0 ? 300 : 0);
            ++ended;
            return i;
        };
    };
    const auto take = [&](int i, const int& result) {
        QCOMPARE(result, i);
        QCOMPARE(taken++, i);
        most = qMax(most, begun - taken);
    };
    QCOMPARE(runJobs<int>("Work", count, prepare, take), cancelAfter < 0);
    QCOMPARE(int(ended), int(begun));
    QCOMPARE(taken, cancelAfter < 0 ? count : cancelAfter);
    QVERIFY(most <= threads() * 12);
    QCOMPARE(host.progresses.value(0).updates.size(), taken + 1);
    QVERIFY(host.progresses.value(0).finished);
}

// Behind many small ones, too.
void TestJobs::fewLargePiecesAreUnderWay()
{
    constexpr int Small = 40;
    TestInterface host;
    int prepared = 0;
    int most = 0;
    const auto prepare = [&prepared](int i) -> std::function<int()> {
        ++prepared;
        return [i] {
            QThread::msleep(i < Small ? 0 : 20);
            return i;
        };
    };
    const auto take = [&](int i, const int&) {
        most = i < Small + 8 + threads() * 12 ? 0 : qMax(most, prepared - i);
    };
    QVERIFY(runJobs<int>("Work", Small + 8 + threads() * 24, prepare, take));
    QVERIFY2(most > 0 && most <= threads() * 4, qPrintable(QString::number(most)));
}

void TestJobs::nothingBeginsOnceGivenUp()
{
    TestInterface host;
    host.cancelAfter = 1;
    std::atomic_int begun{0};
    const auto prepare = [&begun](int i) -> std::function<int()> {
        return [&begun, i] {
            ++begun;
            QThread::msleep(i > 0 ? 200 : 0);
            return i;
        };
    };
    QVERIFY(!runJobs<int>("Work", 500, prepare, [](int, const int&) {}));
    QVERIFY2(begun <= 1 + 2 * threads(), qPrintable(QString::number(begun)));
}

/// Also when every piece is done before it is asked for.
void TestJobs::eventsHaveTheirTurn()
{
    TestInterface host;
    int turns = 0;
    QTimer timer;
    connect(&timer, &QTimer::timeout, this, [&turns] { ++turns; });
    timer.start(0);
    const auto prepare = [](int) { return [] {}; };
    QVERIFY(runJobs(QStringLiteral("Work"), 100, prepare, [](int) { QThread::msleep(1); }));
    QVERIFY(turns >= 5);
}

QTEST_MAIN(TestJobs)
#include "tst_jobs.moc"
