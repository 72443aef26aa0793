#include "image/canvas/canvascontent.h"
#include "image/canvas/canvasrecord.h"
#include "image/canvas/imageundostack.h"
#include "support/canvasstate.h"
#include "support/testimagepalette.h"
#include "support/testtable.h"

#include <QBuffer>
#include <QRandomGenerator>
#include <QTest>

using namespace Zorv;

class TestCanvasRecord : public QObject
{
    Q_OBJECT

private slots:
    void comesBackWhole_data();
    void comesBackWhole();
    void brokenBytesAreNone();
    void contentComesBack();
};

namespace {

QImage noise(const QSize& size, bool isIndexed, QRandomGenerator* random)
{
    QImage image(size, isIndexed ? QImage::Format_Indexed8 : QImage::Format_ARGB32);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < image.bytesPerLine(); ++x) {
            image.scanLine(y)[x] = uchar(random->bounded(256));
        }
    }
    return image;
}

void fill(ImageCanvas* canvas, bool isIndexed, int count, quint32 seed)
{
    QRandomGenerator random(seed);
    const QSize size(random.bounded(1, 40), random.bounded(1, 40));
    canvas->setFormat(isIndexed ? ImageCanvas::IndexedFormat : ImageCanvas::RGBAFormat, false);
    canvas->setSize(size, {}, false);
    canvas->setAxis({random.bounded(-50, 50), random.bounded(-50, 50)});
    for (int i = 0; i < count; ++i) {
        ImageLayer* layer = canvas->newRasterLayer(noise(size, isIndexed, &random));
        layer->setName(QString("L\xe4yer %1").arg(i), false);
        layer->setVisible(random.bounded(2) > 0);
        layer->setOpacity(random.bounded(5) / 4.0, false);
        layer->setBlendMode(QPainter::CompositionMode(random.bounded(3)), false);
    }
    canvas->setActiveLayer(canvas->layers()->at(unsigned(random.bounded(count))));
    canvas->undoStack()->clear();
}

QByteArray bytesOf(const CanvasRecord& record)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    return record.write(&buffer) ? buffer.data() : QByteArray();
}

}  // namespace

void TestCanvasRecord::comesBackWhole_data()
{
    columns<bool, bool, int>("from", "to", "layers");
    row("indexed", true, true, 3);
    row("true colour", false, false, 2);
    row("over true colour", true, false, 1);
    row("over indexed", false, true, 4);
}

/// By way of its bytes, onto a canvas with another picture, as one step.
void TestCanvasRecord::comesBackWhole()
{
    const auto [from, to, layers] = fetched<bool, bool, int>();
    TestImagePalette palette;
    QRandomGenerator random(7);
    palette.randomize(random, 200, 1, 1);
    ImageCanvas first(&palette);
    ImageCanvas second(&palette);
    fill(&first, from, layers, 1);
    fill(&second, to, 2, 2);
    const QByteArray before = stateOf(second);
    CanvasRecord record;
    QVERIFY(record.read(bytesOf(CanvasRecord::of(first))));
    QVERIFY(record.applyTo(&second));
    QCOMPARE(stateOf(second), stateOf(first));
    QCOMPARE(second.activeLayer()->index(), first.activeLayer()->index());
    for (unsigned i = 0; i < first.layers()->count(); ++i) {
        QCOMPARE(second.layers()->at(i)->isVisible(), first.layers()->at(i)->isVisible());
    }
    QCOMPARE(record.flattened(), first.mergeLayers(nullptr));
    second.undoStack()->undo();
    QCOMPARE(stateOf(second), before);
    QVERIFY(second.undoStack()->isClean());
}

void TestCanvasRecord::brokenBytesAreNone()
{
    TestImagePalette palette;
    ImageCanvas canvas(&palette);
    fill(&canvas, true, 2, 3);
    const QByteArray whole = bytesOf(CanvasRecord::of(canvas));
    CanvasRecord record;
    for (int size = 0; size < whole.size(); ++size) {
        QVERIFY(!record.read(whole.left(size)));
    }
    QVERIFY(!record.read(whole + '\0'));
    QVERIFY(record.layers.isEmpty());
    for (int i = 0; i < whole.size(); i += 29) {
        QByteArray wrong = whole;
        wrong[i] = char(wrong[i] ^ 0xff);
        CanvasRecord read;
        if (read.read(wrong)) {
            QCOMPARE(read.layers.size(), 2);
            QVERIFY(read.layers.first().image.size() == read.size);
        }
    }
}

/// What was taken out is there again, state for state, though the canvas was another one meanwhile.
void TestCanvasRecord::contentComesBack()
{
    TestImagePalette palette;
    ImageCanvas canvas(&palette);
    fill(&canvas, true, 3, 4);
    ImageUndoStack* history = canvas.undoStack();
    QVector<QByteArray> states{stateOf(canvas)};
    const auto step = [&](bool isDone) {
        QVERIFY(isDone);
        states.append(stateOf(canvas));
    };
    step(canvas.flip(true, false));
    step(canvas.resize({50, 9}, ImageResizeFilter::Nearest));
    canvas.layers()->remove(canvas.layers()->at(1), true);
    step(canvas.convertTo(ImageCanvas::RGBAFormat));
    states.insert(3, QByteArray());
    QRandomGenerator random(6);
    step(canvas.setSelection(noise(canvas.size(), true, &random)));
    history->undo();
    states.removeLast();
    const int count = history->count();
    std::unique_ptr<CanvasContent> content = canvas.takeContent();
    QVERIFY(canvas.layers()->count() == 0 && history->count() == 0 && history->isClean());
    fill(&canvas, false, 2, 5);
    canvas.flip(true, true);
    const QByteArray other = stateOf(canvas);
    std::unique_ptr<CanvasContent> second = canvas.takeContent();
    canvas.putContent(std::move(content));
    QCOMPARE(history->count(), count);
    for (int i = states.size() - 1; i >= 0; --i) {
        QVERIFY(states.at(i).isEmpty() || stateOf(canvas) == states.at(i));
        QCOMPARE(history->isClean(), i == 0);
        history->undo();
    }
    canvas.putContent(std::move(second));
    QCOMPARE(stateOf(canvas), other);
    QVERIFY(!history->isClean() && !history->canRedo());
}

QTEST_MAIN(TestCanvasRecord)
#include "tst_canvasrecord.moc"
