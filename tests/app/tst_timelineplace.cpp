#include "app/stage/timelineplace.h"

#include <zorv/animation/timeline/timeline.h>
#include <zorv/animation/timeline/timelinewidget.h>

#include <QRandomGenerator>
#include <QVBoxLayout>
#include <QtTest>

namespace {

const unsigned Seed = 61;

class OneRow : public Zorv::TimeLine
{
public:
    QString name() const override { return {}; }
    bool markerAtTick(unsigned, Marker&) const override { return false; }
};

}  // namespace

class TestTimeLinePlace : public QObject
{
    Q_OBJECT

private slots:
    void tickStaysInSight();
    void growsWithItsRows();
};

// Wherever the tick goes, and however the window is resized.
void TestTimeLinePlace::tickStaysInSight()
{
    QRandomGenerator random(Seed);
    auto* line = new Zorv::TimeLineWidget;
    App::TimeLinePlace place(line);
    place.resize(400, 60);
    place.show();
    for (int round = 0; round < 200; ++round) {
        if (random.bounded(2) == 0) {
            place.resize(random.bounded(185, 1500), 60);
        } else {
            line->setCurrentTick(random.bounded(2000));
        }
        const QImage image = place.grab().toImage();
        bool isSeen = false;
        for (int x = 125; x < image.width(); ++x) {
            isSeen = isSeen || image.pixelColor(x, 55) == QColor(Qt::yellow);
        }
        QVERIFY2(
            isSeen,
            qPrintable(QStringLiteral("%1 at %2").arg(line->currentTick()).arg(place.width())));
        QVERIFY(place.width() - line->width() < 60);
    }
}

void TestTimeLinePlace::growsWithItsRows()
{
    QWidget window;
    auto* layout = new QVBoxLayout(&window);
    auto* line = new Zorv::TimeLineWidget;
    layout->addWidget(new App::TimeLinePlace(line));
    layout->addStretch();
    window.resize(400, 400);
    window.show();
    OneRow rows[3];
    for (OneRow& row : rows) {
        line->addTimeLine(&row);
        QTRY_COMPARE(line->height(), line->sizeHint().height());
    }
    window.resize(399, 400);
    QCOMPARE(window.width(), 399);
}

QTEST_MAIN(TestTimeLinePlace)
#include "tst_timelineplace.moc"
