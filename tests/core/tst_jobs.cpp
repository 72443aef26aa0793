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
};

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
    QVERIFY(most <= QThreadPool::globalInstance()->maxThreadCount() * 4);
    QCOMPARE(host.progresses.value(0).updates.size(), taken + 1);
    QVERIFY(host.progresses.value(0).finished);
}

QTEST_MAIN(TestJobs)
#include "tst_jobs.moc"
