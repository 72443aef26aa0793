#include "image/imagerenderer.h"

#include "image/canvas/imagelayer.h"
#include "image/canvas/imagelayers.h"
#include "image/canvas/imageselection.h"
#include "image/canvas/imageundostack.h"
#include "image/tools/basepentool.h"
#include "image/tools/strokeoptions.h"
#include "support/testimagepalette.h"

#include <QPainter>
#include <QSignalSpy>
#include <QSlider>
#include <QtTest>

#include <cmath>
#include <limits>

using namespace Zorv;

namespace {

constexpr uint seed = 31;

/// What is shown, and whether the right view is asked.
enum Views { Original = 1, Zoomed = 2, Both = 3, Right = 4, Following = 8 };

/// A renderer on one layer, by itself in a widget that need not be there.
struct View
{
    TestImagePalette palette;
    ImageRenderer renderer{&palette};
    ImageCanvas& canvas = *renderer.canvas();

    View(const QSize& size, const QSize& widget, ImageCanvas::Format format)
    {
        for (int i = 0; i < 256; ++i) {
            palette.colors[i] = {quint8(i * 40), quint8(255 - i), quint8(i * 7),
                                 quint8(i == 0 ? 0 : 255)};
        }
        canvas.setFormat(format, false);
        canvas.setSize(size, QPoint(), false);
        canvas.setActiveLayer(canvas.newRasterLayer(QImage()));
        canvas.undoStack()->clear();
        renderer.sizeChanged(widget.width(), widget.height());
    }

    QImage shown(const QSize& size)
    {
        QImage image(size, QImage::Format_RGB32);
        QPainter painter(&image);
        renderer.render(painter);
        return image;
    }
};

/// All of the picture, built at once.
QImage flattened(const View& view, const std::vector<ImageRenderer::Skin>& skins)
{
    QImage image(view.canvas.size(), QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    for (int row = 0; row <= image.height() / 8; ++row) {
        for (int column = row % 2; column <= image.width() / 8; column += 2) {
            painter.fillRect(column * 8, row * 8, 8, 8, Qt::lightGray);
        }
    }
    for (const ImageRenderer::Skin& skin : skins) {
        painter.setOpacity(skin.opacity);
        painter.drawImage(skin.offset, skin.image);
    }
    painter.setOpacity(1);
    if (view.canvas.format() == ImageCanvas::IndexedFormat) {
        painter.drawImage(0, 0, view.canvas.mergeLayers(nullptr));
    } else {
        for (unsigned i = view.canvas.layers()->count(); i-- > 0;) {
            if (view.canvas.layers()->at(i)->isVisible()) {
                view.canvas.layers()->at(i)->render(painter);
            }
        }
        painter.setOpacity(1);
        painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
    }
    view.canvas.selection()->render(&painter);
    return image;
}

}  // namespace

/// The renderer without a widget, which it does not need.
class TestImageRenderer : public QObject
{
    Q_OBJECT

private slots:
    void mapsPoints_data();
    void mapsPoints();
    void keepsThePlaceInView();
    void zooms_data();
    void zooms();
    void zoomsAboutThePointer();
    void pointerIsWhereItIsTold();
    void picture_data();
    void picture();
    void pressesOutOfOrder_data();
    void pressesOutOfOrder();
    void strokeStaysInItsView();
    void wideBrushes();
    void cursorsFrameTheirPixels_data();
    void cursorsFrameTheirPixels();
    void tellsWhatIsThere();
    void axisIsDraggedAtItsGrip();
};

void TestImageRenderer::mapsPoints_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<int>("views");
    QTest::addColumn<double>("zoom");
    QTest::addColumn<QPoint>("pos");
    QTest::addColumn<QPoint>("rounded");
    QTest::addColumn<QPoint>("pixel");
    const auto row = [](const char* name, QSize size, int views, double zoom, QPoint pos,
                        QPoint rounded, QPoint pixel) {
        QTest::newRow(name) << size << views << zoom << pos << rounded << pixel;
    };
    // A widget of 401 by 301: the middle of a half is 100,150, that of the whole 200,150.
    const QSize even(64, 64);
    const QSize odd(65, 63);
    const QSize wide(300, 64);
    row("corner", even, Both, 1, {68, 118}, {0, 0}, {0, 0});
    row("last column", even, Both, 1, {131, 118}, {63, 0}, {63, 0});
    row("last column, zoomed", even, Both | Right, 1, {331, 118}, {63, 0}, {63, 0});
    row("odd", odd, Both, 1, {68, 119}, {0, 0}, {0, 0});
    row("odd, zoomed", odd, Zoomed | Right, 4, {72, 26}, {0, 0}, {0, 0});
    row("second half of a pixel", even, Zoomed | Right, 4, {74, 25}, {1, 1}, {0, 0});
    row("left of it", even, Zoomed | Right, 4, {71, 22}, {0, 0}, {-1, 0});
    row("last of a pixel", even, Zoomed | Right, 4, {75, 22}, {1, 0}, {0, 0});
    // The column 175 is in the middle of the zoomed view, and so of the other.
    row("follows", wide, Both | Following, 4, {100, 118}, {175, 0}, {175, 0});
}

void TestImageRenderer::mapsPoints()
{
    QFETCH(QSize, size);
    QFETCH(int, views);
    QFETCH(double, zoom);
    QFETCH(QPoint, pos);
    View view(size, {401, 301}, ImageCanvas::RGBAFormat);
    view.renderer.setVisibility(views & Original, views & Zoomed);
    view.renderer.centralize();
    view.canvas.setZoomLevel(zoom);
    view.renderer.setOption(ImageRenderer::FollowOriginal, views & Following);
    if (views & Following) {
        view.canvas.setPosition({0, 0});
    }
    QTEST(view.renderer.mapToCanvas(pos, views & Right), "rounded");
    QTEST(view.renderer.pixelAt(pos, views & Right), "pixel");
}

// Through sizes of all kinds, and through views that come and go.
void TestImageRenderer::keepsThePlaceInView()
{
    View view({64, 64}, {401, 301}, ImageCanvas::RGBAFormat);
    QCOMPARE(view.canvas.position(), QPoint(100, 150));
    const QPoint offset(17, -9);
    view.canvas.setPosition(view.canvas.position() + offset);
    QRandomGenerator random(seed);
    for (int i = 0; i < 100; ++i) {
        const QSize size(random.bounded(900), random.bounded(700));
        const bool original = random.bounded(2);
        const bool zoomed = random.bounded(2);
        view.renderer.sizeChanged(size.width(), size.height());
        view.renderer.setVisibility(original, zoomed);
        const int width = original && zoomed ? size.width() / 2 : size.width();
        QCOMPARE(view.renderer.splitX(), width);
        QCOMPARE(view.canvas.position(), QPoint(width / 2, size.height() / 2) + offset);
    }
    view.renderer.centralize();
    const QPoint middle = view.canvas.position();
    view.renderer.addZoom();
    QCOMPARE(view.canvas.position(), middle);
}

void TestImageRenderer::zooms_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<double>("zoom");
    QTest::addColumn<QVector<int>>("wheel");  // none: the two keys
    QTest::addColumn<QVector<double>>("expected");
    const auto row = [](const char* name, int side, double zoom, const QVector<int>& wheel,
                        const QVector<double>& expected) {
        QTest::newRow(name) << QSize(side, side) << zoom << wheel << expected;
    };
    const int least = std::numeric_limits<int>::min();
    row("half", 400, 0.5, {}, {1, 0.25});
    row("one", 400, 1, {}, {2, 0.5});
    row("between", 400, 1.5, {}, {2.5, 0.5});
    row("eight", 400, 8, {}, {8, 7});
    row("quarter", 400, 0.25, {}, {0.5, 0.25});
    row("wheel", 400, 4, {-120, 240, 120}, {2, 6, 10});
    row("small steps", 400, 2, {50, 50, 50, -90, -59, -1}, {2, 2, 4, 4, 4, 2});
    row("far too far", 400, 2, {~least, least}, {10, 0.125});
    row("tiny canvas", 5, 1, {120, -120}, {10, 10});
    row("one pixel", 1, 1, {120}, {50});
    row("no number", 400, std::numeric_limits<double>::quiet_NaN(), {0}, {1});
    row("infinite", 400, std::numeric_limits<double>::infinity(), {0}, {1});
}

void TestImageRenderer::zooms()
{
    QFETCH(QSize, size);
    QFETCH(double, zoom);
    QFETCH(QVector<int>, wheel);
    QVector<double> found;
    View view(size, {300, 300}, ImageCanvas::RGBAFormat);
    view.canvas.setZoomLevel(zoom);
    if (wheel.isEmpty()) {
        view.renderer.addZoom();
        found += view.canvas.zoomLevel();
        view.canvas.setZoomLevel(zoom);
        view.renderer.subZoom();
        found += view.canvas.zoomLevel();
    }
    for (const int delta : wheel) {
        view.renderer.mouseWheel(delta);
        found += view.canvas.zoomLevel();
    }
    QTEST(found, "expected");
}

/// Also in the middle of a drag of the picture.
void TestImageRenderer::zoomsAboutThePointer()
{
    View view({300, 200}, {500, 400}, ImageCanvas::RGBAFormat);
    view.renderer.setVisibility(true, true);
    view.renderer.setCurrentTool(ImageTool::CanvasMoveTool);
    QRandomGenerator random(seed);
    for (int i = 0; i < 200; ++i) {
        view.canvas.setZoomLevel(random.bounded(2) ? 1 + random.bounded(4) : 0.25 * (1 << i % 4));
        view.canvas.setPosition({random.bounded(600), random.bounded(600)});
        const QPoint pos(250 + random.bounded(250), random.bounded(400));
        if (i % 2) {
            view.renderer.mousePressed(pos + QPoint(5, 3), Qt::LeftButton, Qt::NoModifier);
        }
        view.renderer.mouseMoved(pos, Qt::NoModifier);
        const QPoint before = view.renderer.pixelAt(pos, true);
        view.renderer.mouseWheel(120);
        view.renderer.mouseMoved(pos, Qt::NoModifier);
        const QPoint way = view.renderer.pixelAt(pos, true) - before;
        // Zoomed out, a pixel of the screen is several of the canvas.
        const int most =
            view.canvas.zoomLevel() < 2 ? int(std::ceil(1 / view.canvas.zoomLevel())) * 2 : 0;
        QVERIFY2(std::max(std::abs(way.x()), std::abs(way.y())) <= most,
                 qPrintable(QStringLiteral("%1: %2,%3").arg(i).arg(way.x()).arg(way.y())));
        view.renderer.mouseReleased(pos, Qt::LeftButton, Qt::NoModifier);
    }
}

/// Nothing marks one that is not there, and a wheel needs no move.
void TestImageRenderer::pointerIsWhereItIsTold()
{
    View view({64, 64}, {200, 200}, ImageCanvas::IndexedFormat);
    view.renderer.setVisibility(false, true);
    view.renderer.centralize();
    view.renderer.setCurrentTool(ImageTool::PenTool);
    const QImage without = view.shown({200, 200});
    QCOMPARE(without.pixel(100, 1), without.pixel(1, 1));
    view.renderer.mouseMoved({100, 100}, {});
    QVERIFY(view.shown({200, 200}) != without);
    view.renderer.setPanning(true);
    QCOMPARE(view.shown({200, 200}), without);
    view.renderer.setPanning(false);
    view.renderer.mouseLeft();
    QCOMPARE(view.shown({200, 200}), without);
    const QPointF place(90, 70);
    const QPoint pixel = view.renderer.pixelAt(place, true);
    view.renderer.pointerMoved(place);
    view.renderer.mouseWheel(240);
    QCOMPARE(view.canvas.zoomLevel(), 3.0);
    QCOMPARE(view.renderer.pixelAt(place, true), pixel);
}

void TestImageRenderer::picture_data()
{
    QTest::addColumn<int>("format");
    QTest::newRow("indexed") << int(ImageCanvas::IndexedFormat);
    QTest::newRow("true colour") << int(ImageCanvas::RGBAFormat);
}

// Tools with events in any order, layers and sizes at random: what is made anew in parts is what
// would be made anew as a whole. In the middle of a change the picture before it stays.
void TestImageRenderer::picture()
{
    QFETCH(int, format);
    QRandomGenerator random(seed);
    QSize size(600, 300);
    View view(size, size, ImageCanvas::Format(format));
    view.palette.randomize(random, 256, 1, 1);
    view.renderer.setVisibility(true, false);
    std::vector<ImageRenderer::Skin> skins;
    const auto actual = [&] {
        view.renderer.mouseLeft();
        view.renderer.sizeChanged(size.width(), size.height());
        view.renderer.centralize();
        return view.shown(size);
    };
    const auto stroke = [&] {
        view.renderer.setCurrentTool(ImageTool::Type(random.bounded(9)));
        if (auto* const pen = qobject_cast<BasePenTool*>(view.renderer.currentTool())) {
            pen->slider()->setValue(1 + random.bounded(24));
        }
        view.palette.setForeground(uchar(random.bounded(256)));
        for (int i = 0; i < 8; ++i) {
            const QPoint pos(random.bounded(size.width()), random.bounded(size.height()));
            const auto button = random.bounded(3) ? Qt::LeftButton : Qt::RightButton;
            const int keys[] = {Qt::Key_Left, Qt::Key_Down, Qt::Key_Return, Qt::Key_Space};
            const int kind = random.bounded(8);
            if (kind < 2) {
                view.renderer.mousePressed(pos, button, Qt::NoModifier);
            } else if (kind == 2) {
                view.renderer.mouseReleased(pos, button, Qt::NoModifier);
            } else if (kind == 3) {
                view.renderer.keyPressed(keys[random.bounded(4)], Qt::ShiftModifier);
            } else {
                view.renderer.mouseMoved(pos, Qt::NoModifier);
            }
        }
        view.renderer.focusLost();
    };
    const auto layer = [&] {
        return view.canvas.layers()->at(
            unsigned(random.bounded(int(view.canvas.layers()->count()))));
    };
    const std::vector<std::function<void()>> acts = {
        stroke,
        stroke,
        stroke,
        [&] { view.canvas.setActiveLayer(view.canvas.newRasterLayer(QImage())); },
        [&] { layer()->setVisible(random.bounded(3)); },
        [&] { layer()->setOpacity(random.bounded(100) / 100.0, true); },
        [&] { layer()->setBlendMode(QPainter::CompositionMode(12 + random.bounded(8)), true); },
        [&] { view.canvas.undoStack()->undo(); },
        [&] { view.canvas.flip(true, false); },
        [&] {
            QImage image(40, 30, QImage::Format_ARGB32);
            image.fill(random.generate());
            skins = {{image, {random.bounded(600), 5}, 0.3}, {image, {-9, -9}, 1}};
            view.renderer.setSkins(skins);
        },
        [&] {
            view.palette.colors[random.bounded(256)] = {9, 8, 7, 255};
            view.renderer.layerChanged();
        },
        [&] {
            const QSize other(256 + random.bounded(300), 200 + random.bounded(300));
            view.canvas.setSize(other, {ImageCanvas::Centered, 0}, true);
        }};
    for (int i = 0; i < 150; ++i) {
        const QImage before = actual();
        {
            const ImageRenderer::Change change(&view.renderer);
            acts[std::size_t(random.bounded(int(acts.size())))]();
            if (view.canvas.size() == size && i % 4 == 0) {
                QCOMPARE(actual(), before);
            }
        }
        size = view.canvas.size();
        QVERIFY2(actual() == flattened(view, skins), qPrintable(QString::number(i)));
    }
}

// Letters are events, numbers columns: p and r press and release the left button, P and R the right
// one, m moves; c presses with Ctrl. s and S are Space down and up, f, g and l the losses of focus,
// grab and pointer, t another tool, u undo.
void TestImageRenderer::pressesOutOfOrder_data()
{
    QTest::addColumn<QString>("events");
    QTest::addColumn<QString>("painted");
    QTest::addColumn<int>("steps");
    QTest::addColumn<int>("way");
    const auto row = [](const char* name, const char* events, const char* painted, int steps,
                        int way = 0) {
        QTest::newRow(name) << QString::fromLatin1(events) << QString::fromLatin1(painted) << steps
                            << way;
    };
    row("a stroke", "p1 m3 r3 m6", ".***....", 1);
    row("moves alone", "m1 m5", "........", 0);
    row("release alone", "r3 R4 m5", "........", 0);
    row("another's release", "p1 R3 m4 r4", ".****...", 1);
    row("two buttons", "p1 P2 m3 r3 m5 R5 m7", ".*****..", 1);
    row("pressed twice", "p1 m2 p5 m6 r6", ".**..**.", 2);
    row("focus", "p1 m3 f m6 r6", ".***....", 1);
    row("grab", "p1 m3 g m6 r6", ".***....", 1);
    row("pointer", "p1 m3 l m6 r6", ".***....", 1);
    row("other tool", "p1 m3 t m6 r6", ".***....", 1);
    row("undo", "p1 m3 u m6 r6", "........", 0);
    row("ctrl", "m1 c1 m3 r5", "........", 0, 2);
    row("ctrl while painting", "p1 C2 m3 R3 r4", ".***....", 1);
    row("space", "m1 s p1 m3 S m4 r4 p5 r5", "..*.....", 1, 3);
    row("space and focus", "s f p2 m3 r3", "..**....", 1);
    row("outside", "p-40 m900 r900", "********", 1);
}

void TestImageRenderer::pressesOutOfOrder()
{
    QFETCH(QString, events);
    View view({64, 64}, {64, 64}, ImageCanvas::IndexedFormat);
    ImageRenderer& renderer = view.renderer;
    renderer.setVisibility(true, false);
    renderer.setCurrentTool(ImageTool::PenTool);
    const QPoint begin = view.canvas.position();
    for (const QString& event : events.split(' ')) {
        const QPoint pos(event.mid(1).toInt(), 7);
        const char letter = event.at(0).toLatin1();
        const auto button = strchr("PRC", letter) ? Qt::RightButton : Qt::LeftButton;
        const auto modifiers = strchr("cC", letter) ? Qt::ControlModifier : Qt::NoModifier;
        if (strchr("pPcC", letter)) {
            renderer.mousePressed(pos, button, modifiers);
        } else if (strchr("rR", letter)) {
            renderer.mouseReleased(pos, button, Qt::NoModifier);
        } else if (letter == 'm') {
            renderer.mouseMoved(pos, Qt::NoModifier);
        } else if (strchr("sS", letter)) {
            letter == 's' ? renderer.keyPressed(Qt::Key_Space, {})
                          : renderer.keyReleased(Qt::Key_Space, {});
        } else if (letter == 'u') {
            view.canvas.undoStack()->undo();
        } else if (letter == 't') {
            renderer.setCurrentTool(ImageTool::RectSelTool);
        } else {
            letter == 'f'   ? renderer.focusLost()
            : letter == 'g' ? renderer.grabLost()
                            : renderer.mouseLeft();
        }
    }
    QString painted;
    const QImage& image = view.canvas.activeLayer()->image();
    for (int x = 0; x < 8; ++x) {
        painted += image.pixelIndex(x, 7) == view.palette.front ? '*' : '.';
    }
    QTEST(painted, "painted");
    QTEST(view.canvas.undoStack()->index(), "steps");
    QTEST((view.canvas.position() - begin).x(), "way");
}

// In the original at the left, and on into the zoomed view.
void TestImageRenderer::strokeStaysInItsView()
{
    View view({200, 64}, {200, 100}, ImageCanvas::IndexedFormat);
    view.canvas.setZoomLevel(4);
    view.renderer.setCurrentTool(ImageTool::PenTool);
    const QPoint from = view.renderer.originalRect().topLeft() + QPoint(60, 20);
    view.renderer.mousePressed(from, Qt::LeftButton, Qt::NoModifier);
    view.renderer.mouseMoved(from + QPoint(100, 0), Qt::NoModifier);
    view.renderer.mouseReleased(from + QPoint(100, 0), Qt::LeftButton, Qt::NoModifier);
    const QImage& image = view.canvas.activeLayer()->image();
    for (int x = 0; x < 200; ++x) {
        QCOMPARE(image.pixelIndex(x, 20), x >= 60 && x <= 160 ? 1 : 0);
    }
}

// At zoom 4, where the pixel 10,10 is 40 to 43.
void TestImageRenderer::wideBrushes()
{
    View view({64, 64}, {256, 256}, ImageCanvas::IndexedFormat);
    view.renderer.setVisibility(false, true);
    view.canvas.setZoomLevel(4);
    view.renderer.setCurrentTool(ImageTool::PenTool);
    auto* const pen = qobject_cast<BasePenTool*>(view.renderer.currentTool());
    const auto painted = [&](int width, bool isCentered, QPoint pos) {
        view.renderer.setOption(ImageRenderer::CenteredBrush, isCentered);
        pen->slider()->setValue(width);
        view.renderer.mousePressed(pos, Qt::LeftButton, Qt::NoModifier);
        const QRect rect = view.canvas.activeLayer()->cropRect();
        view.canvas.undoStack()->undo();
        return rect;
    };
    QCOMPARE(painted(1, true, {43, 40}), QRect(10, 10, 1, 1));
    QCOMPARE(painted(3, true, {43, 40}), QRect(9, 9, 3, 3));
    QCOMPARE(painted(2, true, {41, 40}), QRect(9, 9, 2, 2));
    QCOMPARE(painted(2, true, {42, 43}), QRect(10, 10, 2, 2));
    QCOMPARE(painted(3, false, {43, 40}), QRect(10, 10, 3, 3));
}

void TestImageRenderer::cursorsFrameTheirPixels_data()
{
    QTest::addColumn<int>("zoom");
    QTest::addColumn<QPoint>("to");
    for (const int zoom : {3, 4, 5, 8}) {
        for (const QPoint to : {QPoint(20, 18), QPoint(12, 20), QPoint(12, 11), QPoint(16, 16)}) {
            QTest::addRow("%d to %d,%d", zoom, to.x(), to.y()) << zoom << to;
        }
    }
}

/// The pen has a white line around its pixels, a selection on the edge of them.
void TestImageRenderer::cursorsFrameTheirPixels()
{
    QFETCH(int, zoom);
    QFETCH(QPoint, to);
    const QPoint from(16, 16);
    View view({32, 32}, {300, 300}, ImageCanvas::IndexedFormat);
    view.canvas.activeLayer()->pixels()->fill(1);
    view.renderer.setVisibility(false, true);
    view.renderer.setOption(ImageRenderer::CenteredBrush, true);
    view.canvas.setZoomLevel(zoom);
    const QPoint corner = view.renderer.zoomedRect().topLeft();
    const auto framed = [&] {
        const QImage image = view.shown({300, 300});
        QRegion white;
        for (int y = 0; y < 300; ++y) {
            for (int x = 0; x < 300; ++x) {
                white += image.pixel(x, y) == 0xffffffff ? QRect(x, y, 1, 1) : QRect();
            }
        }
        return white.boundingRect();
    };
    const auto onScreen = [&](const QRect& pixels) {
        return QRect(corner + pixels.topLeft() * zoom, pixels.size() * zoom);
    };
    for (int inside = 0; inside < zoom; ++inside) {
        const QPoint at = corner + to * zoom + QPoint(inside, inside);
        view.renderer.setCurrentTool(ImageTool::RectSelTool);
        view.renderer.mousePressed(corner + from * zoom, Qt::LeftButton, Qt::NoModifier);
        view.renderer.mouseMoved(at, Qt::NoModifier);
        const QRect selected = QRect(from, from) | QRect(to, to);
        QCOMPARE(framed(), onScreen(selected));
        view.renderer.setCurrentTool(ImageTool::PenTool);
        view.renderer.mouseMoved(at, Qt::NoModifier);
        QCOMPARE(framed(), onScreen(QRect(to, to)).adjusted(-1, -1, 1, 1));
    }
}

void TestImageRenderer::tellsWhatIsThere()
{
    View view({64, 64}, {64, 64}, ImageCanvas::IndexedFormat);
    view.renderer.setVisibility(true, false);
    view.renderer.setCurrentTool(ImageTool::PenTool);
    QStringList told;
    connect(&view.renderer, &ImageRenderer::pos, this, [&](QPoint pixel, int index, QRgb color) {
        told += QStringLiteral("%1,%2 %3 %4")
                    .arg(pixel.x())
                    .arg(pixel.y())
                    .arg(index)
                    .arg(color, 0, 16);
    });
    QSignalSpy moves(&view.renderer, &ImageRenderer::cursorChanged);
    QSignalSpy left(&view.renderer, &ImageRenderer::cursorLeft);
    view.renderer.mouseMoved({5, 6}, Qt::NoModifier);
    view.renderer.mouseMoved({5, 6}, Qt::NoModifier);
    view.renderer.mousePressed({5, 6}, Qt::LeftButton, Qt::NoModifier);
    view.renderer.mouseReleased({5, 6}, Qt::LeftButton, Qt::NoModifier);
    view.renderer.mouseMoved({-1, 6}, Qt::NoModifier);
    view.canvas.setFormat(ImageCanvas::RGBAFormat, true);
    view.renderer.mouseMoved({5, 6}, Qt::NoModifier);
    view.renderer.mouseLeft();
    view.canvas.undoStack()->undo();
    QCOMPARE(told.join("; "),
             QStringLiteral("5,6 0 ff00; 5,6 1 ff28fe07; -1,6 -1 0; 5,6 -1 ff28fe07"));
    QCOMPARE(moves.count(), 3);
    QCOMPARE(left.count(), 1);
}

void TestImageRenderer::axisIsDraggedAtItsGrip()
{
    View view({64, 64}, {200, 200}, ImageCanvas::IndexedFormat);
    view.renderer.setVisibility(true, false);
    view.renderer.setCurrentTool(ImageTool::PenTool);
    StrokeOptions& options = *view.renderer.strokeOptions();
    const QPoint corner = view.renderer.originalRect().topLeft();
    const auto drag = [&](QPoint from, QPoint to) {
        view.renderer.mousePressed(corner + from, Qt::LeftButton, Qt::NoModifier);
        view.renderer.mouseMoved(corner + to, Qt::NoModifier);
        view.renderer.mouseReleased(corner + to, Qt::LeftButton, Qt::NoModifier);
        return options.symmetryAxis(view.canvas.size());
    };
    QCOMPARE(drag({32, -5}, {10, -3}), QPointF(32, 32));
    options.setSymmetry(StrokeOptions::LeftRight | StrokeOptions::TopBottom);
    QCOMPARE(drag({32, -5}, {10, 50}), QPointF(10, 32));
    QCOMPARE(drag({-5, 32}, {3, 900}), QPointF(10, 64));
    QVERIFY(view.canvas.undoStack()->count() == 0);
    options.setSymmetry(StrokeOptions::LeftRight);
    drag({4, 20}, {4, 20});
    QCOMPARE(view.canvas.activeLayer()->image().pixelIndex(15, 20), 1);
}

QTEST_MAIN(TestImageRenderer)

#include "tst_imagerenderer.moc"
