#include "image/palettepreviews.h"

#include "editors/palette/colorpalette.h"
#include "editors/palette/palettewidget.h"
#include "image/canvas/imagecanvas.h"
#include "image/canvas/imagelayer.h"
#include "image/previewgrid_p.h"
#include "media/paletteobject.h"

#include <QRandomGenerator>
#include <QScreen>
#include <QSignalSpy>
#include <QtTest>

#include <memory>

using namespace Zorv;

namespace {

/// The area of the widget that is painted.
class PaintedArea : public QObject
{
public:
    qint64 pixels = 0;

protected:
    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() == QEvent::Paint) {
            for (const QRect& rect : static_cast<QPaintEvent*>(event)->region()) {
                pixels += qint64(rect.width()) * rect.height();
            }
        }
        return false;
    }
};

QVector<PalettePreviews::Preview> palettes(int count)
{
    QVector<PalettePreviews::Preview> all;
    for (int i = 0; i < count; ++i) {
        QVector<QRgb> colors;
        for (int entry = 0; entry < 256; ++entry) {
            colors.append(qRgb(entry, 255 - entry, i * 20));
        }
        all.append({QString::number(i), colors});
    }
    return all;
}

}  // namespace

class TestPalettePreviews : public QObject
{
    Q_OBJECT

private slots:
    void grid();
    void pictures();
    void follows();
    void chosen();
};

/// In any window the pictures are whole, apart, and where they are said to be.
void TestPalettePreviews::grid()
{
    QRandomGenerator random(5);
    const auto side = [&random](int most) { return random.bounded(1, random.bounded(2, most)); };
    for (int i = 0; i < 3000; ++i) {
        const QSize window(side(900), side(900));
        const QSize picture(side(1200), side(1200));
        const PreviewGrid grid(window, picture, random.bounded(13), {random.bounded(99), 14}, 6);
        QRegion all;
        for (int cell = 0; cell < grid.count(); ++cell) {
            const QRect place = grid.cell(cell);
            QVERIFY(QRect(QPoint(), window).contains(place) && !grid.picture(cell).isEmpty());
            QVERIFY(!all.intersects(place));
            QCOMPARE(grid.indexAt(place.center()), cell);
            QCOMPARE(grid.part(cell, QRect(QPoint(), picture)), grid.picture(cell));
            all += place;
        }
    }
}

class Shown
{
public:
    explicit Shown(const QSize& size)
    {
        grid.palette()->setColor(nullptr, {1, 2, 3, 255});
        canvas.setFormat(ImageCanvas::IndexedFormat, false);
        canvas.setSize(size, {}, false);
        canvas.setActiveLayer(canvas.newRasterLayer({}));
        previews.setCanvas(&canvas);
        previews.setPreviews(palettes(12));
        previews.resize(800, 600);
    }

    void paint(const QRect& rect, int index)
    {
        canvas.beginStroke(canvas.activeLayer(), ImageCanvas::TiledStroke, "paint");
        canvas.willChange(rect);
        for (int y = rect.top(); y <= rect.bottom(); ++y) {
            for (int x = rect.left(); x <= rect.right(); ++x) {
                canvas.activeLayer()->pixels()->scanLine(y)[x] = uchar(index);
            }
        }
        canvas.changed(rect);
    }

    /// Each pixel of each preview, in its own palette.
    void compare(const QImage& seen)
    {
        const QImage merged = canvas.mergeLayers(nullptr);
        QSize label(0, previews.fontMetrics().height());
        for (const PalettePreviews::Preview& each : palettes(12)) {
            label.rwidth() =
                qMax(label.width(), previews.fontMetrics().horizontalAdvance(each.name));
        }
        const PreviewGrid layout(previews.size(), merged.size(), 12, label, 6);
        for (int i = 0; i < 12; ++i) {
            const QVector<QRgb> colors = palettes(12).at(i).colors;
            for (int n = 0; n < merged.width() * merged.height(); ++n) {
                const QPoint pixel(n % merged.width(), n / merged.width());
                const QPoint at = layout.part(i, QRect(pixel, QSize(1, 1))).center();
                QCOMPARE(seen.pixel(at) | 0xff000000, colors[merged.pixelIndex(pixel)]);
            }
        }
    }

    PaletteWidget grid;
    ColorPalette palette{&grid};
    ImageCanvas canvas{&palette};
    PalettePreviews previews;
};

void TestPalettePreviews::pictures()
{
    Shown shown({12, 9});
    shown.paint({3, 2, 4, 5}, 77);
    shown.compare(shown.previews.grab().toImage());
    shown.canvas.setSize({20, 14}, {4, 4}, true);
    shown.compare(shown.previews.grab().toImage());
    // Without a canvas, and with one of true colour, it says so.
    shown.canvas.setFormat(ImageCanvas::RGBAFormat, true);
    const QImage message = shown.previews.grab().toImage();
    shown.previews.setCanvas(nullptr);
    QVERIFY(shown.previews.grab().toImage() != message);
}

/// What is on the screen is right after each stroke, and little of it was painted.
void TestPalettePreviews::follows()
{
    Shown shown({40, 30});
    PaintedArea area;
    shown.previews.show();
    QVERIFY(QTest::qWaitForWindowExposed(&shown.previews));
    QTest::qWait(50);
    shown.previews.installEventFilter(&area);
    QRandomGenerator random(8);
    for (int i = 0; i < 8; ++i) {
        area.pixels = 0;
        shown.paint({random.bounded(38), random.bounded(28), 2, 2}, i + 1);
        QTRY_VERIFY(area.pixels > 0);
        QVERIFY(area.pixels < 800 * 600 / 20);
        shown.compare(shown.previews.screen()->grabWindow(shown.previews.winId()).toImage());
    }
}

void TestPalettePreviews::chosen()
{
    Shown shown({12, 9});
    QSignalSpy spy(&shown.previews, &PalettePreviews::chosen);
    shown.previews.grab();
    QPoint place;
    while (shown.previews.indexAt(place) != 5) {
        place = place.x() < 799 ? place + QPoint(1, 0) : QPoint(0, place.y() + 1);
        QVERIFY(place.y() < 600);
    }
    QTest::mouseClick(&shown.previews, Qt::LeftButton, {}, place);
    QTest::keyClick(&shown.previews, Qt::Key_Right);
    QTest::keyClick(&shown.previews, Qt::Key_Return);
    QCOMPARE(spy.size(), 2);
    QCOMPARE(spy.at(0).first().toInt(), 5);
    QCOMPARE(spy.at(1).first().toInt(), 6);
    shown.previews.setPreviews(palettes(3));
    QCOMPARE(shown.previews.currentIndex(), -1);
}

QTEST_MAIN(TestPalettePreviews)
#include "tst_palettepreviews.moc"
