#include "easel.h"

#include "editors/palette/colorpalette.h"
#include "editors/palette/paletteremapwidget.h"
#include "editors/palette/palettewidget.h"
#include "image/tools/colorramp.h"
#include "support/canvasstate.h"
#include "support/monkey.h"

#include <QPainter>
#include <QSlider>
#include <QtTest>

#include <cmath>

using namespace Zorv;

namespace {

/// Rows of letters: a dot for index 0.
QStringList pictureOf(const QImage& image)
{
    QStringList rows;
    for (int y = 0; y < image.height(); ++y) {
        QString row;
        for (int x = 0; x < image.width(); ++x) {
            const int index = image.pixelIndex(x, y);
            row += index == 0 ? QLatin1Char('.') : QLatin1Char(char('0' + index));
        }
        rows << row;
    }
    return rows;
}

/// Eight colours, of which 5 is half transparent and 7 transparent.
void setColors(TestImagePalette& palette)
{
    for (int i = 0; i < 8; ++i) {
        palette.colors[i] = {quint8(20 + 30 * i), quint8(20 + 30 * i), quint8(20 + 30 * i), 255};
    }
    palette.colors[5].a = 128;
    palette.colors[7].a = 0;
}

}  // namespace

class TestImageTools : public QObject
{
    Q_OBJECT

private slots:
    void strokes_data();
    void strokes();
    void symmetryIsExact();
    void straightLinesFollowTheMouse_data();
    void straightLinesFollowTheMouse();
    void cornersAreMappedAgain();
    void shadingStepsAlongARamp();
    void shiftJoinsOnThisLayerAlone();
    void piecesAreMoved();
    void piecesMixByHalves();
    void colorsUnderAPieceStay();
    void piecesAreLiftedAnew();
    void arrowsAreOneStep();
    void keysAndWells();
    void rowsFollowThePalette();
    void monkey_data();
    void monkey();
};

void TestImageTools::strokes_data()
{
    QTest::addColumn<bool>("pixelPerfect");
    QTest::addColumn<int>("symmetry");
    QTest::addColumn<QVector<QPoint>>("places");
    QTest::addColumn<QStringList>("picture");
    const QVector<QPoint> stairs = {{0, 0}, {1, 0}, {1, 1}, {2, 1}, {2, 2}, {2, 3}};
    QTest::newRow("stairs") << false << 0 << stairs
                            << QStringList{"11....", ".11...", "..1...", "..1..."};
    QTest::newRow("no corners") << true << 0 << stairs
                                << QStringList{"1.....", ".1....", "..1...", "..1..."};
    QTest::newRow("no corners, mirrored") << true << int(StrokeOptions::LeftRight) << stairs
                                          << QStringList{"1....1", ".1..1.", "..11..", "..11.."};
    QTest::newRow("there and back")
        << true << 0 << QVector<QPoint>{{0, 0}, {1, 0}, {1, 1}, {1, 0}, {2, 0}, {3, 0}}
        << QStringList{"1.11..", ".1....", "......", "......"};
    QTest::newRow("on both axes") << false
                                  << int(StrokeOptions::LeftRight | StrokeOptions::TopBottom)
                                  << QVector<QPoint>{{0, 0}, {1, 1}}
                                  << QStringList{"1....1", ".1..1.", ".1..1.", "1....1"};
}

void TestImageTools::strokes()
{
    QFETCH(bool, pixelPerfect);
    QFETCH(int, symmetry);
    QFETCH(QVector<QPoint>, places);
    QFETCH(QStringList, picture);
    Easel easel(ImageCanvas::IndexedFormat, {6, 4});
    easel.options.setPixelPerfect(pixelPerfect);
    easel.options.setSymmetry(StrokeOptions::Symmetry(symmetry));
    easel.stroke(easel.pen, places);
    QCOMPARE(pictureOf(easel.image()), picture);
    QCOMPARE(easel.canvas.undoStack()->count(), 1);
    easel.canvas.undoStack()->undo();
    QCOMPARE(pictureOf(easel.image()).join(QString()).count(QLatin1Char('.')), 24);
}

// Whatever is painted with whatever width, a mirrored picture stays mirrored.
void TestImageTools::symmetryIsExact()
{
    QRandomGenerator random(4);
    for (const double middle : {15.0, 15.5}) {
        Easel easel(ImageCanvas::IndexedFormat, {int(middle * 2), 20});
        easel.options.setSymmetry(StrokeOptions::LeftRight);
        easel.options.setSymmetryAxis({middle + 0.1, 7});
        easel.replace.rows()->setRow(0, 1, 2);
        easel.replace.rows()->setRow(1, 2, 1);
        for (int i = 0; i < 60; ++i) {
            const auto place = [&random] {
                return QPoint(random.bounded(50) - 10, random.bounded(30) - 5);
            };
            BasePenTool& tool = i % 3 ? static_cast<BasePenTool&>(easel.pen) : easel.replace;
            tool.slider()->setValue(random.bounded(6));
            easel.options.setPixelPerfect(i % 2);
            easel.palette.front = static_cast<unsigned char>(random.bounded(3));
            easel.stroke(tool, {place(), place(), place(), place()});
            const QImage image = easel.image();
            QCOMPARE(pictureOf(image), pictureOf(image.mirrored(true, false)));
        }
    }
}

void TestImageTools::straightLinesFollowTheMouse_data()
{
    QTest::addColumn<QPoint>("to");
    QTest::addColumn<QStringList>("picture");
    QTest::newRow("level") << QPoint(5, 0) << QStringList{"111111..", "........", "........"};
    QTest::newRow("nearly level") << QPoint(7, 1)
                                  << QStringList{"1111....", "....1111", "........"};
    QTest::newRow("in twos") << QPoint(5, 2) << QStringList{"11......", "..11....", "....11.."};
    QTest::newRow("diagonal") << QPoint(2, 2) << QStringList{"1.......", ".1......", "..1....."};
    QTest::newRow("upright") << QPoint(0, 2) << QStringList{"1.......", "1.......", "1......."};
}

void TestImageTools::straightLinesFollowTheMouse()
{
    QFETCH(QPoint, to);
    QFETCH(QStringList, picture);
    Easel easel(ImageCanvas::IndexedFormat, {8, 3});
    easel.options.setStraightLines(true);
    easel.replace.rows()->setRow(0, 2, 1);
    easel.replace.rows()->setRow(1, 1, 2);
    for (ImageTool* tool :
         {static_cast<ImageTool*>(&easel.pen), static_cast<ImageTool*>(&easel.replace)}) {
        easel.layer()->pixels()->fill(2);
        easel.press(*tool, {0, 0});
        easel.move(*tool, {3, 2}, Qt::ShiftModifier);
        easel.move(*tool, {90, 1}, Qt::ShiftModifier);
        easel.move(*tool, to, Qt::ShiftModifier);
        easel.release(*tool, to);
        QStringList painted = pictureOf(easel.image());
        QCOMPARE(painted.replaceInStrings(QStringLiteral("2"), QStringLiteral(".")), picture);
        easel.canvas.undoStack()->undo();
        QVERIFY(!pictureOf(easel.image()).join(QString()).contains(QLatin1Char('1')));
        QVERIFY(!easel.canvas.undoStack()->canUndo());
    }
}

// A pixel that was taken away is met by a remap as if it had not been painted.
void TestImageTools::cornersAreMappedAgain()
{
    Easel easel(ImageCanvas::IndexedFormat, {3, 2});
    easel.options.setPixelPerfect(true);
    easel.replace.rows()->setRow(0, 0, 1);
    easel.stroke(easel.replace, {{0, 0}, {1, 0}, {1, 1}});
    QCOMPARE(pictureOf(easel.image()), QStringList({"1..", ".1."}));
    easel.canvas.undoStack()->undo();
    easel.stroke(easel.replace, {{0, 0}, {1, 0}, {1, 1}, {1, 0}});
    QCOMPARE(pictureOf(easel.image()), QStringList({"11.", ".1."}));
}

void TestImageTools::shadingStepsAlongARamp()
{
    Easel easel(ImageCanvas::IndexedFormat, {4, 1});
    for (int i = 0; i < 40; ++i) {
        // Light from 0 to 9, then a jump, then darker from 10 to 29.
        const auto gray = quint8(i < 10 ? 20 + 5 * i : 250 - 5 * i);
        easel.palette.colors[i] = {gray, gray, gray, quint8(i == 30 ? 0 : 255)};
    }
    const auto first = [&easel](int index) {
        const ColorRamp ramp = ColorRamp::around(easel.palette, static_cast<unsigned char>(index));
        return QPoint(ramp.first, ramp.last);
    };
    QCOMPARE(first(3), QPoint(0, 9));
    QCOMPARE(first(9), QPoint(0, 9));
    QCOMPARE(first(10), QPoint(10, 29));
    QCOMPARE(first(30), QPoint(30, 30));
    easel.options.setShading(true);
    QVERIFY(easel.replace.colorClicked(false, 4));
    for (int x = 0; x < 4; ++x) {
        easel.layer()->pixels()->scanLine(0)[x] = uchar(x + 2);
    }
    // There and back: each pixel goes one step.
    easel.stroke(easel.replace, {{0, 0}, {3, 0}, {0, 0}});
    QCOMPARE(pictureOf(easel.image()), QStringList{"3456"});
    easel.stroke(easel.replace, {{0, 0}, {3, 0}, {0, 0}}, Qt::RightButton);
    QCOMPARE(pictureOf(easel.image()), QStringList{"2345"});
}

void TestImageTools::shiftJoinsOnThisLayerAlone()
{
    Easel easel(ImageCanvas::IndexedFormat, {5, 1});
    easel.stroke(easel.pen, {{0, 0}});
    easel.canvas.newRasterLayer({});
    easel.canvas.setActiveLayer(easel.canvas.layers()->at(0));
    easel.stroke(easel.pen, {{4, 0}}, Qt::LeftButton, Qt::ShiftModifier);
    QCOMPARE(pictureOf(easel.image()), QStringList{"....1"});
    easel.stroke(easel.pen, {{2, 0}}, Qt::LeftButton, Qt::ShiftModifier);
    QCOMPARE(pictureOf(easel.image()), QStringList{"..111"});
}

void TestImageTools::piecesAreMoved()
{
    Easel easel(ImageCanvas::IndexedFormat, {16, 13});
    setColors(easel.palette);
    easel.palette.ground = 7;
    uchar* row = easel.layer()->pixels()->scanLine(0);
    const char pixels[] = {1, 2, 3, 4, 7, 6};
    std::copy(std::begin(pixels), std::end(pixels), row);
    const QString before = pictureOf(easel.image()).first();
    // A mask with a hole: index 2 stays, and nothing covers it where its place comes to lie.
    QImage mask = easel.canvas.selection()->mask();
    mask.fill(0);
    mask.scanLine(0)[0] = mask.scanLine(0)[2] = mask.scanLine(0)[4] = 1;
    easel.canvas.setSelection(mask);
    easel.stroke(easel.selMove, {{0, 0}, {1, 0}, {3, 0}});
    QCOMPARE(pictureOf(easel.image()).first(), QStringLiteral("727173").leftJustified(16, '.'));
    // On, and back to where it was.
    easel.stroke(easel.selMove, {{5, 0}, {2, 0}});
    QCOMPARE(pictureOf(easel.image()).first(), before);
    for (int i = 0; i < 2; ++i) {
        easel.canvas.undoStack()->undo();
    }
    QCOMPARE(pictureOf(easel.image()).first(), before);
}

void TestImageTools::piecesMixByHalves()
{
    Easel easel(ImageCanvas::IndexedFormat, {16, 13});
    setColors(easel.palette);
    easel.palette.colors[6] = {95, 95, 95, 192};  // half of 5 upon 0, and half the alpha
    easel.layer()->pixels()->scanLine(0)[0] = 5;
    easel.stroke(easel.rectSel, {{0, 0}, {1, 0}, {0, 0}});
    QVERIFY(easel.selMove.keyPressed({}, Qt::Key_Down));
    QCOMPARE(pictureOf(easel.image()).mid(0, 2),
             QStringList({QString(16, '.'), QStringLiteral("6").leftJustified(16, '.')}));
}

// Pixels that are not selected, or under transparent ones, keep each byte.
void TestImageTools::colorsUnderAPieceStay()
{
    Easel easel(ImageCanvas::RGBAFormat, {20, 20});
    QRandomGenerator random(8);
    QImage* image = easel.layer()->pixels();
    for (int i = 0; i < 400; ++i) {
        const quint32 pixel = random.generate();
        image->setPixel(i % 20, i / 20, random.bounded(3) ? pixel : pixel & 0xFFFFFF);
    }
    const QImage before = easel.image().copy();
    easel.stroke(easel.rectSel, {{3, 3}, {8, 9}});
    easel.stroke(easel.selMove, {{5, 5}, {10, 7}});
    const QRect from(QPoint(3, 3), QPoint(8, 9));
    const QRect to = from.translated(5, 2);
    QImage expected = before.copy();
    for (int i = 0; i < 400; ++i) {
        const QPoint at(i % 20, i / 20);
        const QRgb upper = to.contains(at) ? before.pixel(at - QPoint(5, 2)) : 0;
        const bool shows = qAlpha(upper) > 0;
        if (shows) {
            QVERIFY(qAlpha(upper) < 255 || easel.image().pixel(at) == upper);
        } else {
            QCOMPARE(easel.image().pixel(at),
                     from.contains(at) ? easel.palette.color(0) : before.pixel(at));
        }
    }
}

void TestImageTools::piecesAreLiftedAnew()
{
    Easel easel(ImageCanvas::IndexedFormat, {16, 13});
    setColors(easel.palette);
    easel.stroke(easel.pen, {{0, 0}});
    easel.stroke(easel.rectSel, {{0, 0}, {7, 0}});
    easel.selMove.activated();
    easel.selMove.keyPressed({}, Qt::Key_Right);
    // The piece has nothing of what comes now, and would paint over it.
    easel.palette.front = 2;
    easel.stroke(easel.pen, {{3, 0}});
    easel.selMove.keyPressed({}, Qt::Key_Right);
    QCOMPARE(pictureOf(easel.image()).first(), QStringLiteral("..1.2").leftJustified(16, '.'));
    easel.canvas.undoStack()->undo();
    easel.canvas.undoStack()->undo();
    easel.selMove.keyPressed({}, Qt::Key_Right);
    QCOMPARE(pictureOf(easel.image()).first(), QStringLiteral("..1").leftJustified(16, '.'));
    // Undo in front of the first move of a drag ends it, for the piece is not where it was.
    easel.press(easel.selMove, {2, 0});
    easel.canvas.undoStack()->undo();
    easel.move(easel.selMove, {12, 0});
    easel.release(easel.selMove, {12, 0});
    QCOMPARE(pictureOf(easel.image()).first(), QStringLiteral(".1").leftJustified(16, '.'));
}

void TestImageTools::arrowsAreOneStep()
{
    Easel easel(ImageCanvas::IndexedFormat, {16, 13});
    easel.stroke(easel.pen, {{4, 4}});
    const QByteArray before = stateOf(easel.canvas);
    const int steps = easel.canvas.undoStack()->count();
    for (const int key : {Qt::Key_Left, Qt::Key_Up, Qt::Key_Left}) {
        QVERIFY(easel.selMove.keyPressed({}, key));
    }
    QCOMPARE(easel.image().pixelIndex(2, 3), 1);
    QCOMPARE(easel.canvas.undoStack()->count(), steps + 1);
    easel.canvas.undoStack()->undo();
    QCOMPARE(stateOf(easel.canvas), before);
    easel.layer()->setVisible(false);
    QVERIFY(!easel.selMove.keyPressed({}, Qt::Key_Left));
}

void TestImageTools::keysAndWells()
{
    Easel easel(ImageCanvas::IndexedFormat, {4, 4});
    for (int i = 1; i < 24; ++i) {
        QVERIFY(easel.pen.keyPressed({}, Qt::Key_Plus));
    }
    QVERIFY(!easel.pen.keyPressed({}, Qt::Key_Plus));
    QCOMPARE(easel.pen.brushWidth(), 24);
    QVERIFY(!easel.eraser.keyPressed({}, Qt::Key_Minus));
    for (int i = 1; i < 12; ++i) {
        QVERIFY(easel.replace.keyPressed({}, Qt::Key_Down));
    }
    QVERIFY(!easel.replace.keyPressed({}, Qt::Key_Down));
    QVERIFY(easel.replace.colorClicked(true, 9));
    QCOMPARE(easel.replace.rows()->row(11).target, 9);
    QVERIFY(!easel.pen.colorClicked(true, 9));
    // Half a row paints nothing.
    easel.stroke(easel.replace, {{0, 0}, {3, 3}});
    QVERIFY(!easel.canvas.undoStack()->canUndo());
    // What undo takes away in the middle of a stroke is not painted on.
    easel.press(easel.pen, {0, 0});
    easel.canvas.undoStack()->undo();
    easel.move(easel.pen, {3, 3});
    easel.release(easel.pen, {3, 3});
    QVERIFY(!easel.canvas.undoStack()->canUndo());
    QCOMPARE(pictureOf(easel.image()).join(QString()), QString(16, '.'));
}

void TestImageTools::rowsFollowThePalette()
{
    PaletteWidget grid;
    ColorPalette palette(&grid);
    ImageCanvas canvas(&palette);
    ReplaceTool tool(&canvas);
    tool.rows()->setRow(0, 1, 2);
    tool.activated();
    grid.flatten();
    const QColor before = tool.rows()->grab().toImage().pixelColor(6, 6);
    grid.palette()->setColor(1, RGBA{255, 0, 0, 255});
    QCOMPARE(tool.rows()->grab().toImage().pixelColor(6, 6), QColor(Qt::red));
    grid.undo();
    QCOMPARE(tool.rows()->grab().toImage().pixelColor(6, 6), before);
}

namespace {

/// A person with two mice and no plan.
class Monkey : public MonkeyOf<Monkey>
{
public:
    Monkey(quint32 seed, ImageCanvas::Format format)
        : MonkeyOf(seed, {{30, &Monkey::press},
                          {30, &Monkey::release},
                          {60, &Monkey::moveTo},
                          {6, &Monkey::key},
                          {6, &Monkey::chooseTool},
                          {4, &Monkey::lose},
                          {6, &Monkey::setOption},
                          {4, &Monkey::clickColor},
                          {3, &Monkey::undoOrRedo},
                          {2, &Monkey::changeLayers},
                          {1, &Monkey::changeCanvas}}),
          easel(format, {70, 40})
    {
        easel.palette.randomize(random, 16, 1, 1);
        easel.canvas.undoStack()->setBudget(qint64(1) << 40);
        m_start = stateOf(easel.canvas);
    }

    void tidy() {}

    /// All steps back give the start, and all forth what is there now.
    QString fault()
    {
        lose();
        ImageUndoStack* stack = easel.canvas.undoStack();
        const QByteArray now = stateOf(easel.canvas);
        const int index = stack->index();
        while (stack->canUndo()) {
            stack->undo();
        }
        if (stateOf(easel.canvas) != m_start) {
            return QStringLiteral("undo does not lead to the start");
        }
        while (stack->index() < index && stack->canRedo()) {
            stack->redo();
        }
        return stateOf(easel.canvas) == now ? QString() : QStringLiteral("redo does not lead back");
    }

    Easel easel;

private:
    ImageTool& tool() { return *easel.tools[m_tool]; }
    QPoint place()
    {
        const QSize size = easel.canvas.size();
        return {number(size.width() + 40) - 20, number(size.height() + 40) - 20};
    }
    Qt::KeyboardModifiers modifiers() { return chance(3) ? Qt::ShiftModifier : Qt::NoModifier; }
    Qt::MouseButton button()
    {
        return anyOf({Qt::LeftButton, Qt::LeftButton, Qt::RightButton, Qt::MiddleButton});
    }

    void press() { easel.press(tool(), place(), button(), modifiers()); }
    void release()
    {
        for (const auto each : {Qt::LeftButton, Qt::RightButton, Qt::MiddleButton}) {
            if (!chance(4)) {
                easel.release(tool(), place(), each);
            }
        }
    }
    void moveTo()
    {
        easel.move(tool(), place(), modifiers());
        QImage view(50, 50, QImage::Format_ARGB32_Premultiplied);
        QPainter painter(&view);
        tool().renderCursor(painter, {20, 20}, easel.canvas.zoomLevel());
    }
    void key()
    {
        tool().keyPressed(modifiers(), anyOf({Qt::Key_Plus, Qt::Key_Minus, Qt::Key_Left,
                                              Qt::Key_Right, Qt::Key_Up, Qt::Key_Down, Qt::Key_A}));
    }
    void chooseTool()
    {
        tool().deactivated();
        m_tool = number(9);
        tool().activated();
    }
    void lose()
    {
        tool().mouseLost();
        tool().mouseLeft();
    }
    void setOption()
    {
        easel.options.setPixelPerfect(chance(2));
        easel.options.setStraightLines(chance(2));
        easel.options.setShading(chance(4));
        easel.options.setSymmetry(StrokeOptions::Symmetry(number(4)));
        easel.options.setSymmetryAxis({number(100) / 2.0, number(100) / 2.0});
    }
    void clickColor()
    {
        const auto index = static_cast<unsigned char>(number(20));
        if (!tool().colorClicked(chance(2), index)) {
            easel.palette.setForeground(index);
        }
        easel.palette.setBackground(static_cast<unsigned char>(number(16)));
    }
    void undoOrRedo()
    {
        ImageUndoStack* stack = easel.canvas.undoStack();
        chance(2) ? stack->redo() : stack->undo();
    }
    void changeLayers()
    {
        ImageLayers* layers = easel.canvas.layers();
        switch (number(4)) {
        case 0:
            if (layers->count() < 4) {
                easel.canvas.newRasterLayer({});
            }
            break;
        case 1:
            if (layers->count() > 0) {
                layers->remove(unsigned(number(int(layers->count()))), true);
            }
            break;
        case 2:
            if (easel.layer()) {
                easel.layer()->setVisible(!chance(4));
            }
            break;
        default:
            easel.canvas.setActiveLayer(
                layers->count() ? layers->at(unsigned(number(int(layers->count())))) : nullptr);
        }
    }
    void changeCanvas()
    {
        switch (number(5)) {
        case 4: {
            ImageSelection all;
            all.setSize(easel.canvas.size());
            easel.canvas.setSelection(all.mask());
            break;
        }
        case 0:
            easel.canvas.flip(chance(2), chance(2));
            break;
        case 1:
            easel.canvas.setSize({1 + number(100), 1 + number(60)}, place(), true);
            break;
        case 2:
            easel.canvas.convertTo(anyOf({ImageCanvas::IndexedFormat, ImageCanvas::RGBAFormat}));
            break;
        default:
            easel.canvas.setZoomLevel(number(8) + 0.5);
        }
    }

    int m_tool = ImageTool::PenTool;
    QByteArray m_start;
};

}  // namespace

void TestImageTools::monkey_data()
{
    QTest::addColumn<int>("format");
    QTest::newRow("indexed") << int(ImageCanvas::IndexedFormat);
    QTest::newRow("true colour") << int(ImageCanvas::RGBAFormat);
}

void TestImageTools::monkey()
{
    QFETCH(int, format);
    Monkey monkey(7, ImageCanvas::Format(format));
    monkey.survive(20000, 4000);
}

QTEST_MAIN(TestImageTools)
#include "tst_imagetools.moc"
