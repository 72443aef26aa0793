#include "image/canvas/imagecanvas.h"

#include "image/canvas/imagelayers.h"
#include "image/canvas/imagepainter.h"
#include "image/canvas/imageundostack.h"
#include "image/canvas/rasterlayer.h"
#include "support/canvasstate.h"
#include "support/testimagepalette.h"

#include <QAbstractItemModelTester>
#include <QIdentityProxyModel>
#include <QtTest>

#include <cmath>
#include <limits>

using namespace Zorv;

Q_DECLARE_METATYPE(Zorv::ImageLayer*)

namespace {

QImage filled(const QSize& size, QRgb color)
{
    QImage image(size, QImage::Format_ARGB32);
    image.fill(color);
    return image;
}

/// The list for the tester, which does not know that what is no row may be enabled.
class Rows : public QIdentityProxyModel
{
public:
    explicit Rows(QAbstractItemModel* model) { setSourceModel(model); }

    Qt::ItemFlags flags(const QModelIndex& index) const override
    {
        return index.isValid() ? QIdentityProxyModel::flags(index) : Qt::NoItemFlags;
    }
};

void setUp(ImageCanvas& canvas, ImageCanvas::Format format, const QSize& size, int layers = 1)
{
    canvas.setFormat(format, false);
    canvas.setSize(size, {}, false);
    for (int i = 0; i < layers; ++i) {
        canvas.newRasterLayer({});
    }
    canvas.setActiveLayer(canvas.layers()->at(0));
    canvas.undoStack()->clear();
}

}  // namespace

class TestImageCanvas : public QObject
{
    Q_OBJECT

private slots:
    void zoom_data();
    void zoom();
    void refusalsChangeNothing();
    void enteringLayersFit();
    void changesOfSizeMoveTheAxis_data();
    void changesOfSizeMoveTheAxis();
    void anyAxisCanBeMoved();
    void rotatingOneCropsNoOther();
    void cropLeavesBlankLayersOut();
    void layerListIsAModel();
    void activeLayerMovesOn();
    void signalsComeOnceAndSayWhere();
    void selection();
    void extremeCanvases();
};

void TestImageCanvas::zoom_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<double>("zoom");
    QTest::addColumn<double>("result");
    QTest::newRow("too small is raised") << QSize(200, 100) << 0.1 << 0.5;
    QTest::newRow("too large is lowered") << QSize(200, 100) << 11.0 << 10.0;
    QTest::newRow("tiny") << QSize(5, 5) << 100.0 << 10.0;
    QTest::newRow("tiny, raised") << QSize(5, 5) << 1.0 << 10.0;
    QTest::newRow("a pixel passes the upper limit") << QSize(1, 1) << 2.0 << 50.0;
    QTest::newRow("negative") << QSize(100, 100) << -3.0 << 0.5;
    QTest::newRow("empty") << QSize() << 3.0 << 1.0;
    QTest::newRow("no number") << QSize(9, 9) << std::nan("") << 1.0;
    QTest::newRow("infinite") << QSize(9, 9) << std::numeric_limits<double>::infinity() << 1.0;
}

void TestImageCanvas::zoom()
{
    QFETCH(QSize, size);
    QFETCH(double, zoom);
    QFETCH(double, result);
    ImageCanvas canvas;
    if (size.isValid()) {
        canvas.setSize(size, {}, false);
    }
    canvas.setZoomLevel(zoom);
    QCOMPARE(canvas.zoomLevel(), result);
}

void TestImageCanvas::refusalsChangeNothing()
{
    TestImagePalette palette;
    palette.colors[0].a = 0;
    for (const auto format : {ImageCanvas::IndexedFormat, ImageCanvas::RGBAFormat}) {
        ImageCanvas canvas(&palette);
        setUp(canvas, format, {20, 10}, 2);
        QSignalSpy refused(&canvas, &ImageCanvas::refused);
        const QByteArray before = stateOf(canvas);
        int asked = 0;
        for (const QSize& size : {QSize(), QSize(0, 0), QSize(0, 5), QSize(-3, 4), QSize(4, -1),
                                  QSize(32768, 1), QSize(1, 40000), QSize(INT_MAX, INT_MAX)}) {
            QVERIFY(!canvas.setSize(size, {}, true));
            QVERIFY(!canvas.setSize(size, {}, false));
            QVERIFY(!canvas.resize(size, ImageResizeFilter::Nearest));
            asked += 3;
        }
        if (format == ImageCanvas::RGBAFormat) {
            QVERIFY(!canvas.setSize({32767, 32767}, {}, true));
            ++asked;
        }
        QVERIFY(!canvas.crop());  // nothing shows
        QCOMPARE(refused.count(), asked + 1);
        QVERIFY(!canvas.rotate(std::numeric_limits<float>::quiet_NaN(), ImageResizeFilter::Hq));
        QVERIFY(!canvas.setSelection(QImage(3, 3, QImage::Format_Indexed8)));
        canvas.layers()->at(0)->setOpacity(std::nan(""), true);
        canvas.layers()->at(0)->setBlendMode(QPainter::RasterOp_SourceXorDestination, true);
        canvas.layers()->remove(99U, true);
        QCOMPARE(stateOf(canvas), before);
        QCOMPARE(canvas.undoStack()->count(), 0);
    }
    ImageCanvas empty;
    QVERIFY(!empty.crop() && !empty.flip(true, false) && !empty.newRasterLayer({}));
    QVERIFY(empty.mergeLayers(nullptr).isNull());
    QVERIFY(!empty.rotateAll(90, ImageResizeFilter::Nearest));
    empty.changing(nullptr);
    QVERIFY(!empty.willChange({0, 0, 5, 5}));
    QCOMPARE(empty.undoStack()->count(), 0);
}

void TestImageCanvas::enteringLayersFit()
{
    TestImagePalette palette;
    palette.colors[3] = {255, 0, 0, 255};
    palette.colors[7] = {0, 0, 0, 0};
    palette.ground = 2;
    ImageCanvas canvas(&palette);
    setUp(canvas, ImageCanvas::IndexedFormat, {4, 3});
    const QImage& red = canvas.newRasterLayer(filled({2, 2}, qRgb(250, 0, 0)))->image();
    QCOMPARE(pixelBytes(red), QByteArray::fromHex("030307070303070707070707"));
    QCOMPARE(red.colorCount(), 0);
    // As a layer that was made for another canvas, and larger.
    ImageCanvas other(&palette);
    setUp(other, ImageCanvas::RGBAFormat, {9, 9});
    ImageLayer* const layer = new RasterLayer(&other, filled({9, 9}, 0x00FF0000));
    layer->setName(QStringLiteral("made for another"), true);
    QVERIFY(!other.undoStack()->canUndo());
    QVERIFY(canvas.layers()->add(layer, false));
    QVERIFY(!canvas.layers()->add(layer, false));
    QVERIFY(!other.layers()->add(layer, false));
    QCOMPARE(layer->canvas(), &canvas);
    QCOMPARE(pixelBytes(layer->image()), QByteArray(12, 7));
    // The table of an image tells its colours, not that of the palette.
    setUp(other, ImageCanvas::RGBAFormat, {2, 1}, 0);
    QImage indexed(2, 1, QImage::Format_Indexed8);
    indexed.setColorTable({qRgba(1, 2, 3, 4)});
    indexed.fill(0);
    QCOMPARE(other.newRasterLayer(indexed)->image().pixel(1, 0), qRgba(1, 2, 3, 4));
}

void TestImageCanvas::changesOfSizeMoveTheAxis_data()
{
    QTest::addColumn<QString>("act");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QPoint>("axis");
    QTest::addColumn<QPoint>("mark");
    // On a canvas of 20 by 10 with a marked pixel and the axis at its corner, 3, 2.
    QTest::newRow("flip") << "flip" << QSize(20, 10) << QPoint(17, 2) << QPoint(16, 2);
    QTest::newRow("crop") << "crop" << QSize(1, 1) << QPoint(0, 0) << QPoint(0, 0);
    QTest::newRow("larger") << "larger" << QSize(25, 13) << QPoint(7, 6) << QPoint(7, 6);
    QTest::newRow("centred") << "centred" << QSize(15, 13) << QPoint(0, 3) << QPoint(0, 3);
    QTest::newRow("resize") << "resize" << QSize(40, 30) << QPoint(6, 6) << QPoint(6, 6);
    QTest::newRow("rotate") << "rotate" << QSize(10, 20) << QPoint(8, 3) << QPoint(7, 3);
    QTest::newRow("rotate all") << "rotateAll" << QSize(10, 20) << QPoint(8, 3) << QPoint(7, 3);
}

void TestImageCanvas::changesOfSizeMoveTheAxis()
{
    QFETCH(QString, act);
    QFETCH(QSize, size);
    QFETCH(QPoint, axis);
    QFETCH(QPoint, mark);
    TestImagePalette palette;
    palette.colors[0].a = 0;
    for (const auto format : {ImageCanvas::IndexedFormat, ImageCanvas::RGBAFormat}) {
        ImageCanvas canvas(&palette);
        setUp(canvas, format, {20, 10}, act == QStringLiteral("rotate") ? 1 : 2);
        const int pixelBytes = format == ImageCanvas::RGBAFormat ? 4 : 1;
        memset(canvas.layers()->at(0)->pixels()->scanLine(2) + 3 * pixelBytes, 255,
               size_t(pixelBytes));
        canvas.setAxis({3, 2});
        const QByteArray before = stateOf(canvas);
        QSignalSpy sizes(&canvas, &ImageCanvas::sizeChanged);
        const QMap<QString, std::function<bool()>> acts = {
            {"flip", [&] { return canvas.flip(true, false); }},
            {"crop", [&] { return canvas.crop(); }},
            {"larger",
             [&] {
                 return canvas.setSize({25, 13}, {4, 4}, true);
             }},
            {"centred",
             [&] {
                 return canvas.setSize({15, 13}, {ImageCanvas::Centered, 0}, true);
             }},
            {"resize",
             [&] {
                 return canvas.resize({40, 30}, ImageResizeFilter::Nearest);
             }},
            {"rotate", [&] { return canvas.rotate(90, ImageResizeFilter::Nearest); }},
            {"rotateAll", [&] { return canvas.rotateAll(90, ImageResizeFilter::Nearest); }},
        };
        QVERIFY(acts[act]());
        QCOMPARE(canvas.size(), size);
        QCOMPARE(canvas.axis(), axis);
        const QImage& image = canvas.layers()->at(0)->image();
        QCOMPARE(image.size(), size);
        QCOMPARE(int(image.constScanLine(mark.y())[mark.x() * pixelBytes]), 255);
        QCOMPARE(canvas.undoStack()->count(), 1);
        const QByteArray after = stateOf(canvas);
        const int heard = sizes.count();
        canvas.undoStack()->undo();
        QCOMPARE(stateOf(canvas), before);
        canvas.undoStack()->redo();
        QCOMPARE(stateOf(canvas), after);
        QCOMPARE(sizes.count(), 3 * heard);
        QVERIFY(heard == (size == QSize(20, 10) ? 0 : 1));
    }
}

/// A file may hold any number.
void TestImageCanvas::anyAxisCanBeMoved()
{
    ImageCanvas canvas;
    setUp(canvas, ImageCanvas::RGBAFormat, {20, 10}, 2);
    const int most = std::numeric_limits<int>::max();
    const QPoint axis(-most - 1, most);
    canvas.setAxis(axis);
    const auto isOnItsSide = [&](int sign) {
        const qint64 x = qint64(canvas.axis().x()) * sign;
        return x < -1000 && canvas.axis().y() * qint64(sign) > 1000;
    };
    canvas.flip(true, true);
    QVERIFY(isOnItsSide(-1));
    canvas.undoStack()->undo();
    QCOMPARE(canvas.axis(), axis);
    canvas.resize({4000, 4000}, ImageResizeFilter::Nearest);
    QVERIFY(isOnItsSide(1));
    canvas.setSize({3999, 3999}, {-1, 5}, true);
    QVERIFY(isOnItsSide(1));
    canvas.rotateAll(180, ImageResizeFilter::Nearest);
    QVERIFY(isOnItsSide(-1));
}

void TestImageCanvas::rotatingOneCropsNoOther()
{
    ImageCanvas canvas;
    setUp(canvas, ImageCanvas::RGBAFormat, {20, 10}, 2);
    *canvas.layers()->at(1)->pixels() = filled({20, 10}, 0xFF123456);
    QVERIFY(canvas.rotate(90, ImageResizeFilter::Nearest));
    QCOMPARE(canvas.size(), QSize(20, 20));
    QCOMPARE(canvas.layers()->at(1)->image().copy(0, 5, 20, 10), filled({20, 10}, 0xFF123456));
    QCOMPARE(canvas.layers()->at(0)->image().size(), QSize(20, 20));
}

void TestImageCanvas::cropLeavesBlankLayersOut()
{
    TestImagePalette palette;  // without a transparent entry 0 is empty
    ImageCanvas canvas(&palette);
    setUp(canvas, ImageCanvas::IndexedFormat, {10, 10}, 3);
    canvas.layers()->at(0)->pixels()->scanLine(4)[2] = 1;
    canvas.layers()->at(2)->pixels()->scanLine(6)[8] = 1;
    QVERIFY(canvas.crop());
    QCOMPARE(canvas.size(), QSize(7, 3));
    canvas.undoStack()->clear();
    QVERIFY(canvas.crop());
    QCOMPARE(canvas.undoStack()->count(), 0);
}

void TestImageCanvas::layerListIsAModel()
{
    ImageCanvas canvas;
    setUp(canvas, ImageCanvas::RGBAFormat, {3, 3}, 0);
    ImageLayers& layers = *canvas.layers();
    Rows rows(&layers);
    const QAbstractItemModelTester tester(&rows,
                                          QAbstractItemModelTester::FailureReportingMode::QtTest);
    QSignalSpy inserted(&layers, &QAbstractItemModel::rowsInserted);
    QSignalSpy edited(&layers, &QAbstractItemModel::dataChanged);
    for (int i = 0; i < 4; ++i) {
        ImageLayer* const layer = new RasterLayer(&canvas, QImage());
        layer->setImage(filled({3, 3}, 0));
        QVERIFY(layers.insert(layer, i / 2, true));
        QCOMPARE(inserted.last().at(1).toInt(), i / 2);
    }
    QVERIFY(layers.setData(layers.index(2), QStringLiteral("eyes"), Qt::EditRole));
    QVERIFY(layers.setData(layers.index(2), Qt::Unchecked, Qt::CheckStateRole));
    QCOMPARE(edited.count(), 2);
    QCOMPARE(layers.data(layers.index(2), Qt::CheckStateRole).toInt(), 0);
    layers.remove(1U, true);
    QCOMPARE(layers.data(layers.index(1)).toString(), QStringLiteral("eyes"));
    QCOMPARE(layers.flags({}), Qt::ItemFlags(Qt::ItemIsEnabled));
    QVERIFY(!layers.setData({}, 1));
    while (canvas.undoStack()->canUndo()) {
        canvas.undoStack()->undo();
    }
    QCOMPARE(layers.rowCount(), 0);
    while (canvas.undoStack()->canRedo()) {
        canvas.undoStack()->redo();
    }
    QCOMPARE(layers.rowCount(), 3);
    layers.removeAll();
}

void TestImageCanvas::activeLayerMovesOn()
{
    ImageCanvas canvas;
    setUp(canvas, ImageCanvas::RGBAFormat, {3, 3}, 3);
    QVector<ImageLayer*> rows = {canvas.layers()->at(0), canvas.layers()->at(1),
                                 canvas.layers()->at(2)};
    qRegisterMetaType<ImageLayer*>();
    QSignalSpy active(&canvas, &ImageCanvas::activeLayerChanged);
    canvas.setActiveLayer(rows[1]);
    canvas.layers()->remove(rows[1], true);
    QCOMPARE(canvas.activeLayer(), rows[2]);
    canvas.layers()->remove(rows[2], true);
    QCOMPARE(canvas.activeLayer(), rows[0]);
    QVERIFY(canvas.painter()->image());
    canvas.layers()->remove(rows[0], true);
    QVERIFY(!canvas.activeLayer());
    QVERIFY(!canvas.painter()->image());
    QCOMPARE(active.count(), 4);
    canvas.painter()->floodFill({1, 1});
    canvas.painter()->line({-5, -5}, {9, 9});
}

void TestImageCanvas::signalsComeOnceAndSayWhere()
{
    qRegisterMetaType<ImageLayer*>();
    ImageCanvas canvas;
    setUp(canvas, ImageCanvas::RGBAFormat, {300, 200}, 3);
    QSignalSpy parts(&canvas, &ImageCanvas::partChanged);
    QSignalSpy looks(&canvas, &ImageCanvas::layerChanged);
    canvas.setAxis({150, 100});
    canvas.flip(true, true);  // blank: nothing is different
    QCOMPARE(looks.count(), 0);
    ImageLayer* const layer = canvas.layers()->at(1);
    canvas.beginStroke(layer, ImageCanvas::TiledStroke, QStringLiteral("pen"));
    QVERIFY(canvas.willChange({70, 10, 2, 2}));
    layer->pixels()->setPixel(71, 11, 0xFFFFFFFF);
    canvas.changed({70, 10, 2, 2});
    QCOMPARE(parts.last().at(0).value<ImageLayer*>(), layer);
    QCOMPARE(parts.last().at(1).toRect(), QRect(70, 10, 2, 2));
    QVERIFY(canvas.undoStack()->canUndo() && !canvas.undoStack()->isClean());
    // Undo ends the stroke first, and takes it back then.
    canvas.undoStack()->undo();
    QVERIFY(!canvas.isStroking() && canvas.undoStack()->isClean());
    QCOMPARE(layer->image().pixel(71, 11), 0U);
    QVERIFY(QRect(64, 0, 64, 64).contains(parts.last().at(1).toRect()));
    QCOMPARE(looks.count(), 2);
    canvas.flip(true, false);
    canvas.undoStack()->redo();
    QVERIFY(!canvas.willChange({0, 0, 1, 1}));
}

void TestImageCanvas::selection()
{
    ImageCanvas canvas;
    setUp(canvas, ImageCanvas::RGBAFormat, {8, 4});
    ImageSelection& selection = *canvas.selection();
    QVERIFY(selection.isAll() && selection.clipQuery(7, 3) && !selection.clipQuery(8, 3));
    selection.fromRect(QRect(QPoint(5, 2), QPoint(-3, -2)));  // drawn to the upper left
    QVERIFY(selection.clipQuery(4, 1) && !selection.clipQuery(6, 1) && !selection.clipQuery(0, 3));
    selection.enableQueries(false);
    QVERIFY(selection.clipQuery(7, 3) && !selection.clipQuery(-1, 0));
    selection.enableQueries(true);
    const QImage image = filled({8, 4}, 0xFF010203);
    QCOMPARE(selection.filter(image, false, 7).pixel(0, 0), 7U);
    QCOMPARE(selection.filter(image, false, 7).pixel(7, 3), 0xFF010203);
    QCOMPARE(selection.filter(image, true, 7).pixel(7, 3), 7U);
    QCOMPARE(selection.filter(filled({3, 3}, 5), true, 7), filled({3, 3}, 5));
    // As a step, and values above 1 count as 1.
    QImage mask(8, 4, QImage::Format_Indexed8);
    mask.setColorCount(256);
    mask.fill(200);
    const QByteArray before = stateOf(canvas);
    QVERIFY(canvas.setSelection(mask));
    QVERIFY(selection.isAll());
    QVERIFY(canvas.setSelection(mask));
    QCOMPARE(canvas.undoStack()->count(), 1);
    canvas.undoStack()->undo();
    QCOMPARE(stateOf(canvas), before);
}

void TestImageCanvas::extremeCanvases()
{
    TestImagePalette palette;
    for (const QSize& size : {QSize(1, 1), QSize(32767, 1), QSize(1, 32767)}) {
        for (const auto format : {ImageCanvas::IndexedFormat, ImageCanvas::RGBAFormat}) {
            ImageCanvas canvas(&palette);
            setUp(canvas, format, size, 2);
            const QByteArray before = stateOf(canvas);
            canvas.changing(canvas.activeLayer());
            canvas.painter()->setColor(1);
            canvas.painter()->setWidth(24);
            canvas.painter()->point({size.width() - 1, size.height() - 1});
            canvas.endStroke();
            QVERIFY(canvas.flip(true, true));
            QVERIFY(canvas.rotateAll(90, ImageResizeFilter::Nearest));
            QVERIFY(canvas.rotateAll(0.01F, ImageResizeFilter::Nearest));
            canvas.crop();
            QCOMPARE(canvas.mergeLayers(nullptr).size(), canvas.size());
            while (canvas.undoStack()->canUndo()) {
                canvas.undoStack()->undo();
            }
            QCOMPARE(stateOf(canvas), before);
        }
    }
}

QTEST_GUILESS_MAIN(TestImageCanvas)
#include "tst_imagecanvas.moc"
