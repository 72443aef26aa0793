#include "graphics/glcontext.h"
#include "graphics/renderwidget.h"
#include "image/canvas/imagelayer.h"
#include "image/canvas/imageundostack.h"
#include "image/imagerenderer.h"
#include "support/gltest.h"
#include "support/testimagepalette.h"

#include <QApplication>
#include <QtTest>

using namespace Zorv;

/// A canvas in its widget, with the events of a person, at several scales of the screen.
class TestImageView : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(isContextUsable()); }
    void init();
    void cleanup() { widget.reset(); }
    void pixelUnderThePointer_data();
    void pixelUnderThePointer();
    void isPaintedByKeys();
    void strokeEndsWithTheFocus();

private:
    ImageCanvas& canvas() const { return *renderer->canvas(); }
    void setImage(const QSize& size);
    void send(QPointF pos, Qt::MouseButtons buttons);
    QRect painted() const { return canvas().activeLayer()->cropRect(); }

    TestImagePalette palette;
    std::unique_ptr<ImageRenderer> renderer;
    std::unique_ptr<RenderWidget> widget;
};

void TestImageView::init()
{
    renderer = std::make_unique<ImageRenderer>(&palette);
    renderer->setVisibility(false, true);
    widget = std::make_unique<RenderWidget>();
    widget->resize(300, 200);
    widget->setRenderer(renderer.get());
    widget->show();
    QVERIFY(QTest::qWaitForWindowExposed(widget.get()));
    QApplication::setActiveWindow(widget.get());
}

/// Each pixel has another colour, in a large one each of a row.
void TestImageView::setImage(const QSize& size)
{
    canvas().setSize(size, QPoint(), false);
    QImage image(size, QImage::Format_ARGB32);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x) {
            image.setPixel(x, y, qRgb(x & 255, y & 255, x >> 8));
        }
    }
    canvas().setActiveLayer(canvas().newRasterLayer(image));
    canvas().undoStack()->clear();
}

/// A move of the mouse, which may lie between places of whole numbers.
void TestImageView::send(QPointF pos, Qt::MouseButtons buttons)
{
    QMouseEvent event(QEvent::MouseMove, pos, Qt::NoButton, buttons, {});
    QApplication::sendEvent(widget.get(), &event);
}

void TestImageView::pixelUnderThePointer_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<double>("zoom");
    QTest::addColumn<QPoint>("offset");
    QTest::newRow("actual") << QSize(120, 90) << 1.0 << QPoint();
    QTest::newRow("half") << QSize(320, 240) << 0.5 << QPoint(3, 1);
    QTest::newRow("between") << QSize(101, 90) << 1.3 << QPoint(7, -3);
    QTest::newRow("near") << QSize(60, 50) << 3.0 << QPoint();
    QTest::newRow("nearest") << QSize(60, 50) << 10.0 << QPoint(-31, 40);
    // Its right end lies in a tile that is not in the first texture.
    QTest::newRow("beyond a texture") << QSize(20000, 50) << 1.0 << QPoint(-9900, 0);
}

// For pixels of the screen all over the widget: the one that is told is the one that is seen.
void TestImageView::pixelUnderThePointer()
{
    QFETCH(QSize, size);
    QFETCH(double, zoom);
    QFETCH(QPoint, offset);
    setImage(size);
    canvas().setZoomLevel(zoom);
    canvas().setPosition(canvas().position() + offset);
    const QImage seen = widget->grabFramebuffer().convertToFormat(QImage::Format_RGB32);
    const double scale = widget->devicePixelRatioF();
    QCOMPARE(seen.width(), qRound(300 * scale));
    QPoint pixel;
    connect(renderer.get(), &ImageRenderer::cursorChanged, this, [&](QPoint at) { pixel = at; });
    int inside = 0;
    for (int y = 0; y < seen.height(); y += 7) {
        for (int x = y % 3; x < seen.width(); x += 3) {
            send(QPointF(x, y) / scale, {});
            const QImage& image = canvas().activeLayer()->image();
            // The last one may be cut off, where the rectangle is rounded.
            const QPointF middle = QPointF(x + 0.5, y + 0.5) / scale;
            if (image.rect().contains(pixel) && QRectF(renderer->zoomedRect()).contains(middle)) {
                ++inside;
                QCOMPARE(QColor(seen.pixel(x, y)), QColor(image.pixel(pixel)));
            }
        }
    }
    QVERIFY(inside > 200);
}

// Click, Shift-click to a line, a drag, and the background.
void TestImageView::isPaintedByKeys()
{
    canvas().setFormat(ImageCanvas::IndexedFormat, false);
    palette.colors[0].a = 0;
    palette.ground = 2;
    canvas().setSize({64, 64}, QPoint(), false);
    canvas().setActiveLayer(canvas().newRasterLayer(QImage()));
    renderer->setCurrentTool(ImageTool::PenTool);
    canvas().setZoomLevel(10);
    const auto press = [&](Qt::Key key, int times = 1, Qt::KeyboardModifiers modifiers = {}) {
        for (int i = 0; i < times; ++i) {
            QTest::keyClick(widget.get(), key, modifiers);
        }
    };
    send({150, 100}, {});
    const QImage blank = widget->grabFramebuffer();
    press(Qt::Key_Left, 12);
    QVERIFY(widget->grabFramebuffer() != blank);
    press(Qt::Key_Return);
    QCOMPARE(painted(), QRect(20, 32, 1, 1));
    press(Qt::Key_Right, 4);
    press(Qt::Key_Return, 1, Qt::ShiftModifier);
    QCOMPARE(painted(), QRect(20, 32, 5, 1));
    QTest::keyPress(widget.get(), Qt::Key_Shift);
    for (int i = 0; i < 5; ++i) {
        QTest::keyPress(widget.get(), Qt::Key_Down, Qt::ShiftModifier);
    }
    QCOMPARE(painted(), QRect(20, 32, 5, 6));
    QVERIFY(canvas().isStroking());
    QTest::keyRelease(widget.get(), Qt::Key_Shift);
    QVERIFY(!canvas().isStroking());
    press(Qt::Key_Down);
    press(Qt::Key_Enter, 1, Qt::AltModifier);
    QCOMPARE(canvas().activeLayer()->image().pixelIndex(24, 38), 2);
    // At the end of the canvas it stays, and in view.
    press(Qt::Key_Right, 70);
    press(Qt::Key_Return);
    QCOMPARE(painted().right(), 63);
    QVERIFY(widget->rect().contains(renderer->zoomedRect().topLeft() + QPoint(635, 385)));
}

// What a stroke has painted until the focus goes stays; its release ends nothing more.
void TestImageView::strokeEndsWithTheFocus()
{
    setImage({64, 64});
    renderer->setCurrentTool(ImageTool::PenTool);
    const QPoint corner = renderer->zoomedRect().topLeft();
    QTest::mousePress(widget.get(), Qt::LeftButton, {}, corner + QPoint(2, 5));
    send(corner + QPointF(10, 5), Qt::LeftButton);
    QVERIFY(canvas().isStroking());
    widget->clearFocus();
    QVERIFY(!canvas().isStroking());
    send(corner + QPointF(20, 5), Qt::LeftButton);
    QTest::mouseRelease(widget.get(), Qt::LeftButton, {}, corner + QPoint(20, 5));
    const QImage& image = canvas().activeLayer()->image();
    QCOMPARE(QColor(image.pixel(10, 5)), QColor(Qt::black));
    QCOMPARE(QColor(image.pixel(11, 5)), QColor(11, 5, 0));
    QCOMPARE(canvas().undoStack()->count(), 1);
}

ZORV_GL_TEST_MAIN_AT_SCALES(TestImageView, "1", "1.25", "1.5", "2")

#include "tst_imageview.moc"
