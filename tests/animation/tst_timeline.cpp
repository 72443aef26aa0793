#include "animation/timeline/timelinewidget.h"

#include "animation/timeline/tickclock_p.h"
#include "animation/timeline/timeline.h"
#include "support/testtable.h"

#include <QPointer>
#include <QRandomGenerator>
#include <QSignalSpy>
#include <QtTest>

#include <functional>
#include <limits>

using namespace Zorv;

namespace {

constexpr unsigned LastTick = std::numeric_limits<unsigned>::max();
constexpr int Endless = -1;
const QColor Colour(160, 140, 40);

class Frames : public TimeLine
{
public:
    explicit Frames(QVector<int> lengths) : m_lengths(std::move(lengths)) {}

    QString name() const override { return QStringLiteral("Frames"); }
    bool markerAtTick(unsigned tick, Marker& marker) const override
    {
        unsigned start = 0;
        for (const int length : m_lengths) {
            if (start == tick) {
                marker = {Colour, length};
                return true;
            }
            start += unsigned(length);
        }
        return false;
    }

private:
    QVector<int> m_lengths;
};

/// The middle of a cell of the first row.
QPoint cell(int index, int row = 0)
{
    return {125 + 6 * index + 3, 20 + 30 * row + 15};
}

QVector<unsigned> ticks(const QSignalSpy& spy)
{
    QVector<unsigned> told;
    for (const auto& arguments : spy) {
        told.append(arguments.first().toUInt());
    }
    return told;
}

/// Other than QTest's, also outside of the widget.
void moveMouse(QWidget* widget, const QPoint& place)
{
    QMouseEvent event(QEvent::MouseMove, place, Qt::NoButton, Qt::NoButton, {});
    QCoreApplication::sendEvent(widget, &event);
}

using Work = std::function<void(TimeLineWidget*)>;

}  // namespace

Q_DECLARE_METATYPE(Work)

class TestTimeLine : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        widget = new TimeLineWidget;
        widget->resize(725, 60);
        widget->show();
        QVERIFY(QTest::qWaitForWindowActive(widget));
    }
    void cleanup() { delete widget; }

    void rateUnderLoad_data();
    void rateUnderLoad();
    void page_data();
    void page();
    void mouse_data();
    void mouse();
    void keys();
    void shapes();
    void playing();
    void handler_data();
    void handler();
    void wholePages();
    void paintedFrames();
    void endsOfTheRange();

private:
    QPointer<TimeLineWidget> widget;
};

void TestTimeLine::rateUnderLoad_data()
{
    // `work`: microseconds of each tick
    // `late`: microseconds at most by which the timer is late
    // `stall`: microseconds more, once in 50 ticks
    columns<int, int, int, int>("work", "late", "stall", "slowness");
    QTest::addRow("idle") << 0 << 0 << 0 << 1;
    QTest::addRow("half a tick") << 8333 << 100 << 0 << 1;
    QTest::addRow("late timer") << 3000 << 7000 << 0 << 1;
    QTest::addRow("stalls") << 2000 << 1000 << 200000 << 1;
    QTest::addRow("half speed") << 20000 << 3000 << 0 << 2;
    QTest::addRow("quarter speed") << 3000 << 7000 << 0 << 4;
}

// A timer of whole milliseconds, driven by the clock's intervals.
void TestTimeLine::rateUnderLoad()
{
    const auto [work, late, stall, slowness] = fetched<int, int, int, int>();
    QRandomGenerator random(7);
    TickClock clock{slowness};
    qint64 interval = clock.firstInterval();
    qint64 time = 0;
    qint64 first = 0;
    for (int i = 0; i <= 600; ++i) {
        const qint64 extra = i % 50 == 25 ? stall : 0;
        const qint64 elapsed =
            interval * 1000000 + (work + extra + random.bounded(late + 1)) * 1000LL;
        time += elapsed;
        first = i == 0 ? time : first;
        interval = clock.step(elapsed);
        QVERIFY(interval >= 0);
    }
    const double rate = 600 * 1e9 / double(time - first) * slowness;
    QVERIFY2(qAbs(rate - 60) < 0.06, qPrintable(QString::number(rate)));
    QVERIFY(qAbs(clock.currentFPS * float(slowness) - 60) < 0.6F);
}

void TestTimeLine::page_data()
{
    columns<int, unsigned, unsigned>("width", "tick", "first");
    QTest::addRow("last of a page") << 725 << 99U << 0U;
    QTest::addRow("next page") << 725 << 100U << 100U;
    QTest::addRow("later page") << 725 << 257U << 200U;
    QTest::addRow("rounded down to ten") << 125 + 6 * 104 + 5 << 104U << 100U;
    QTest::addRow("rounded down further") << 125 + 6 * 37 << 80U << 70U;
    QTest::addRow("shorter than ten") << 125 + 6 * 7 << 20U << 10U;
    QTest::addRow("one tick") << 125 + 6 << 129U << 120U;
    QTest::addRow("no tick") << 130 << 500U << 0U;
    QTest::addRow("narrower than the names") << 50 << 500U << 0U;
    QTest::addRow("end") << 725 << LastTick << LastTick / 100 * 100;
}

void TestTimeLine::page()
{
    const auto [width, tick] = fetched<int, unsigned>();
    widget->resize(width, 60);
    widget->setCurrentTick(tick);
    QTest::mouseClick(widget, Qt::LeftButton, {}, cell(0));
    QTEST(widget->currentTick(), "first");
}

void TestTimeLine::mouse_data()
{
    // `way`: press, moves, release
    columns<unsigned, QVector<QPoint>, QVector<unsigned>>("start", "way", "told");
    using Way = QVector<QPoint>;
    using Told = QVector<unsigned>;
    const QPoint name(60, 35);
    const QPoint edge(125, 35);
    QTest::addRow("a click in the strip") << 0U << Way{cell(50), cell(50)} << Told{50};
    QTest::addRow("jumps to the release only")
        << 0U << Way{cell(50), cell(60), cell(70)} << Told{70};
    QTest::addRow("the cursor follows")
        << 10U << Way{cell(10), cell(12), cell(12), cell(9), cell(5)} << Told{12, 9};
    QTest::addRow("not past the first tick") << 10U << Way{cell(10), {-500, 0}, name} << Told{0};
    QTest::addRow("turns back a page") << 107U << Way{cell(7), name, name} << Told{90};
    QTest::addRow("from a name") << 5U << Way{name, cell(50), cell(50)} << Told{};
    QTest::addRow("from the edge of the names") << 5U << Way{edge, cell(50)} << Told{};
    QTest::addRow("from the scale to a name") << 250U << Way{{400, 3}, name} << Told{190};
}

void TestTimeLine::mouse()
{
    const auto [start, way] = fetched<unsigned, QVector<QPoint>>();
    widget->setCurrentTick(start);
    widget->setFocusPolicy(Qt::NoFocus);
    widget->clearFocus();
    QSignalSpy spy(widget.data(), &TimeLineWidget::tickChanged);
    QTest::mousePress(widget, Qt::LeftButton, {}, way.first());
    for (int i = 1; i < way.size() - 1; ++i) {
        moveMouse(widget, way.at(i));
    }
    QTest::mouseRelease(widget, Qt::LeftButton, {}, way.last());
    QTEST(ticks(spy), "told");
    QVERIFY(widget->hasFocus());
}

void TestTimeLine::keys()
{
    QSignalSpy spy(widget.data(), &TimeLineWidget::tickChanged);
    QTest::keyClick(widget, Qt::Key_Left);
    QTest::keyClick(widget, Qt::Key_Right);
    QTest::keyClick(widget, Qt::Key_Right);
    QTest::keyClick(widget, Qt::Key_Up);
    QTest::keyClick(widget, Qt::Key_Left);
    QCOMPARE(ticks(spy), QVector<unsigned>({1, 2, 1}));
}

void TestTimeLine::shapes()
{
    widget->setCurrentTick(107);
    moveMouse(widget, cell(7));
    QCOMPARE(widget->cursor().shape(), Qt::SizeHorCursor);
    moveMouse(widget, cell(8));
    QCOMPARE(widget->cursor().shape(), Qt::ArrowCursor);
    widget->play();
    moveMouse(widget, cell(int(widget->currentTick() % 100)));
    QCOMPARE(widget->cursor().shape(), Qt::ArrowCursor);
}

// Also when the work of a tick takes longer than a tick: each is told, and other events have
// their turn between two of them.
void TestTimeLine::playing()
{
    widget->setCurrentTick(95);
    QVector<unsigned> told;
    int handled = 0;
    connect(widget, &TimeLineWidget::tickChanged, this, [&](unsigned tick) {
        QCOMPARE(handled, told.size());
        told.append(tick);
        QTest::qSleep(told.size() % 4 == 0 ? 40 : 1);
        QTimer::singleShot(0, widget, [&] {
            ++handled;
            QVERIFY(widget->isPlaying());
            QTest::mouseClick(widget, Qt::LeftButton, {}, cell(50));
        });
    });
    widget->play();
    QCOMPARE(told, QVector<unsigned>({95}));
    QTRY_VERIFY(told.size() >= 20);
    for (int i = 0; i < told.size(); ++i) {
        QCOMPARE(told.at(i), 95U + unsigned(i));
    }
    const unsigned tick = widget->currentTick();
    QTest::keyClick(widget, Qt::Key_Left);
    QCOMPARE(widget->currentTick(), tick - 1);
    QVERIFY(widget->isPlaying());
}

void TestTimeLine::handler_data()
{
    columns<Work, bool>("work", "goesOn");
    const auto later = [](const Work& work) -> Work {
        return [work](TimeLineWidget* line) { QTimer::singleShot(0, line, [=] { work(line); }); };
    };
    const Work stop = [](TimeLineWidget* line) { line->stop(); };
    const Work remove = [](TimeLineWidget* line) { delete line; };
    const Work restart = [](TimeLineWidget* line) {
        line->stop();
        line->play();
    };
    QTest::addRow("stop") << stop << false;
    QTest::addRow("stop in an event") << later(stop) << false;
    QTest::addRow("delete") << remove << false;
    QTest::addRow("delete in an event") << later(remove) << false;
    QTest::addRow("play again") << restart << true;
    QTest::addRow("play again in an event") << later(restart) << true;
}

// What a slot does at tick 3, beside taking away the rows.
void TestTimeLine::handler()
{
    QFETCH(Work, work);
    QFETCH(bool, goesOn);
    auto frames = std::make_unique<Frames>(QVector<int>{4, 4});
    widget->addTimeLine(frames.get());
    QSignalSpy spy(widget.data(), &TimeLineWidget::tickChanged);
    connect(widget, &TimeLineWidget::tickChanged, this, [&](unsigned tick) {
        if (tick == 3 && frames) {
            widget->clearTimeLines();
            frames.reset();
            work(widget);
        } else if (tick == 8) {
            widget->stop();
        }
    });
    widget->play();
    QTRY_VERIFY(!frames);
    if (goesOn) {
        QTRY_VERIFY(!widget->isPlaying());
        QCOMPARE(ticks(spy), QVector<unsigned>({0, 1, 2, 3, 3, 4, 5, 6, 7, 8}));
    } else {
        QTest::qWait(100);
        QCOMPARE(ticks(spy), QVector<unsigned>({0, 1, 2, 3}));
        QVERIFY(!widget || !widget->isPlaying());
    }
}

// The bar of the tick is seen whole wherever it goes, and however the window is resized; a click in
// the rest of the width, where nothing is painted, is none.
void TestTimeLine::wholePages()
{
    QRandomGenerator random(61);
    widget->setWholePages(true);
    for (int round = 0; round < 200; ++round) {
        const bool isResized = random.bounded(2) == 0;
        const QSize size = isResized ? QSize(random.bounded(185, 1500), 60) : widget->size();
        widget->resize(size);
        widget->setCurrentTick(isResized ? widget->currentTick() : random.bounded(2000U));
        const QImage image = widget->grab().toImage();
        const int end = 125 + (image.width() - 125) / 60 * 60;
        int bars = 0;
        for (int x = 125; x < image.width(); ++x) {
            bars += x < end && image.pixelColor(x, 55) == QColor(Qt::yellow);
            QVERIFY(x <= end || image.pixel(x, 15) == image.pixel(2, 2));
        }
        QVERIFY2(bars == 2, qPrintable(QString::number(widget->currentTick())));
        const unsigned tick = widget->currentTick();
        QTest::mouseClick(widget, Qt::LeftButton, {}, {end + 1, 55});
        QCOMPARE(widget->currentTick(), image.width() > end + 1 ? tick : widget->currentTick());
    }
}

void TestTimeLine::paintedFrames()
{
    Frames first({7, 3, 1, Endless});
    Frames second({1, 12});
    widget->addTimeLine(&first);
    widget->addTimeLine(&second);
    widget->resize(725, widget->sizeHint().height());
    widget->setCurrentTick(15);
    const QImage image = widget->grab().toImage();
    const QColor ground = widget->palette().color(QPalette::Window);
    const auto shown = [&](int row) {
        QString cells;
        for (int i = 0; i < 18; ++i) {
            const QColor colour = image.pixelColor(cell(i, row));
            cells += colour == Colour                 ? 'F'
                     : colour == QColor(Qt::yellow)   ? '|'
                     : colour == ground               ? '.'
                     : colour.blue() >= ground.blue() ? '?'
                                                      : 'b';
        }
        return cells;
    };
    QCOMPARE(shown(0), QStringLiteral("FbbbbbbFbbFF...|.."));
    QCOMPARE(shown(1), QStringLiteral("FFbbbbbbbbbbb..|.."));
    QCOMPARE(image.pixelColor(cell(15).x(), image.height() - 1), QColor(Qt::yellow));
}

void TestTimeLine::endsOfTheRange()
{
    Frames frames({2, std::numeric_limits<int>::max(), Endless});
    widget->addTimeLine(&frames);
    widget->setCurrentTick(LastTick);
    QSignalSpy spy(widget.data(), &TimeLineWidget::tickChanged);
    QTest::keyClick(widget, Qt::Key_Right);
    QCOMPARE(spy.count(), 0);
    widget->grab();
    QTest::mouseClick(widget, Qt::LeftButton, {}, {724, 59});
    QCOMPARE(ticks(spy), QVector<unsigned>({LastTick}).mid(1));
    for (const QSize& size : {QSize(1, 1), QSize(125, 20), QSize(131, 21), QSize(3000, 2000)}) {
        widget->resize(size);
        for (const unsigned tick : {0U, 1U, LastTick - 1, LastTick}) {
            widget->setCurrentTick(tick);
            widget->grab();
            moveMouse(widget, {0, 0});
            QCOMPARE(widget->cursor().shape(), Qt::ArrowCursor);
        }
    }
}

QTEST_MAIN(TestTimeLine)
#include "tst_timeline.moc"
