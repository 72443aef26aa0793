#include "image/canvas/imageundostack.h"

#include "image/canvas/imagecanvas.h"
#include "image/canvas/imagepainter.h"
#include "image/canvas/imageundocommand.h"
#include "image/canvas/rasterlayer.h"
#include "support/canvasstate.h"
#include "support/monkey.h"
#include "support/testimagepalette.h"

#include <QtTest>

using namespace Zorv;

namespace {

constexpr uint seed = 20261123;

/// A step of a number, with so many bytes.
class AddCommand : public ImageUndoCommand
{
public:
    AddCommand(int& number, int by, qint64 bytes = 10, int mergeId = -1)
        : ImageUndoCommand(QString::number(by)), m_number(number), m_by(by), m_bytes(bytes),
          m_id(mergeId)
    {
        m_number += by;
    }
    void undo() override { m_number -= m_by; }
    int id() const override { return m_id; }
    bool mergeWith(const QUndoCommand* next) override
    {
        m_by += static_cast<const AddCommand*>(next)->m_by;
        setObsolete(m_by == 0);
        return true;
    }
    qint64 byteSize() const override { return m_bytes; }

protected:
    void doRedo() override { m_number += m_by; }

private:
    int& m_number;
    int m_by;
    qint64 m_bytes;
    int m_id;
};

/// Does to a canvas what can be done to it, and looks if undo and redo give what was.
class CanvasMonkey : public MonkeyOf<CanvasMonkey>
{
public:
    explicit CanvasMonkey(quint32 start)
        : MonkeyOf(start, {{30, &CanvasMonkey::stroke},
                           {5, &CanvasMonkey::looseStroke},
                           {4, &CanvasMonkey::select},
                           {6, &CanvasMonkey::undo},
                           {4, &CanvasMonkey::redo},
                           {6, &CanvasMonkey::attributes},
                           {4, &CanvasMonkey::addLayer},
                           {4, &CanvasMonkey::removeLayer},
                           {2, &CanvasMonkey::form},
                           {4, &CanvasMonkey::shape},
                           {2, &CanvasMonkey::colors}}),
          canvas(&m_palette)
    {
        m_palette.randomize(random, 32, 1, 1);
        canvas.setSize({90, 70}, {}, false);
        canvas.newRasterLayer({});
        canvas.setActiveLayer(canvas.layers()->at(0));
        canvas.undoStack()->clear();
        m_states = {stateOf(canvas)};
    }

    void tidy()
    {
        canvas.endStroke();
        const int index = canvas.undoStack()->index();
        const QByteArray state = stateOf(canvas);
        if (m_moved) {
            if (m_states.value(index) != state) {
                m_fault = QStringLiteral("undo and redo give something else at %1").arg(index);
            }
            m_moved = false;
            return;
        }
        if (m_states.value(index) != state) {
            m_states = m_states.mid(0, index);
            m_states.append(state);
        }
        m_states = m_states.mid(0, canvas.undoStack()->count() + 1);
        if (m_states.size() != canvas.undoStack()->count() + 1 ||
            (index > 0 && m_states[index] == m_states[index - 1])) {
            m_fault = QStringLiteral("a step that does nothing at %1").arg(index);
        }
    }

    QString fault() const { return m_fault; }

    /// Through the whole history and back.
    void walk()
    {
        ImageUndoStack& stack = *canvas.undoStack();
        while (stack.canUndo() || stack.index() > 0) {
            stack.undo();
            QCOMPARE(stateOf(canvas), m_states[stack.index()]);
        }
        while (stack.canRedo()) {
            stack.redo();
            QCOMPARE(stateOf(canvas), m_states[stack.index()]);
        }
    }

    ImageCanvas canvas;

private:
    ImageLayer* anyLayer() { return canvas.layers()->at(unsigned(number(layerCount()))); }
    int layerCount() const { return int(canvas.layers()->count()); }
    QPoint anyPoint() { return {number(canvas.size().width() + 9) - 4, number(99) - 4}; }

    void stroke()
    {
        canvas.setActiveLayer(anyLayer());
        ImageLayer* const layer = canvas.activeLayer();
        canvas.beginStroke(layer, ImageCanvas::TiledStroke, QStringLiteral("pen"), number(3));
        ImagePainter& painter = *canvas.painter();
        painter.setColor(quint8(number(32)));
        painter.setWidth(1 + number(5));
        const QPoint from = anyPoint();
        const QPoint to = anyPoint();
        const QRect touched = QRect(from, QSize(6, 6)) | QRect(to, QSize(6, 6));
        if (layer && canvas.willChange(touched)) {
            painter.line(from, to);
            canvas.changed(touched);
        }
    }
    void looseStroke()
    {
        if (ImageLayer* const layer = anyLayer()) {
            canvas.setActiveLayer(layer);
            canvas.changing(layer);
            canvas.painter()->floodFill(anyPoint());
        }
    }
    void select()
    {
        canvas.beginStroke(nullptr, ImageCanvas::WholeStroke, {});
        canvas.selection()->fromRect(QRect(anyPoint(), anyPoint()));
    }
    void undo()
    {
        m_moved = true;
        canvas.undoStack()->undo();
    }
    void redo()
    {
        m_moved = true;
        canvas.undoStack()->redo();
    }
    void attributes()
    {
        if (ImageLayer* const layer = anyLayer()) {
            layer->setName(QString::number(number(3)), true);
            tidy();
            layer->setOpacity(number(3) / 2.0, true);
            tidy();
            layer->setBlendMode(QPainter::CompositionMode(12 + number(3)), true);
        }
    }
    void addLayer()
    {
        if (layerCount() > 5) {
            return;
        }
        ImageLayer* const source = anyLayer();
        if (source && chance(2)) {
            canvas.layers()->insert(source->duplicate(), number(7), true);
        } else {
            canvas.newRasterLayer(source ? source->image().copy(0, 0, 20, 90) : QImage());
        }
    }
    void removeLayer() { canvas.layers()->remove(anyLayer(), true); }
    void form()
    {
        const auto format = ImageCanvas::Format(number(2));
        chance(2) ? canvas.convertTo(format) : canvas.setFormat(format, true);
    }
    void shape()
    {
        const auto filter = ImageResizeFilter(number(4));
        const QSize size(number(120), number(120));
        switch (number(6)) {
        case 0:
            canvas.setSize(size, chance(2) ? anyPoint() : QPoint(ImageCanvas::Centered, 0), true);
            break;
        case 1:
            canvas.resize(size, filter);
            break;
        case 2:
            canvas.crop();
            break;
        case 3:
            canvas.flip(chance(2), chance(2));
            break;
        default:
            const float angle = chance(2) ? 90.0F : float(number(360));
            // Turning lets a canvas grow.
            if (canvas.size().width() + canvas.size().height() > 250) {
                canvas.setSize({60, 50}, {}, true);
            } else {
                chance(2) ? canvas.rotate(angle, filter) : canvas.rotateAll(angle, filter);
            }
        }
    }
    void colors()
    {
        TestImagePalette other;
        other.randomize(random, 32, 1, 1);
        canvas.changePalette(m_palette.colors, other.colors);
    }

    TestImagePalette m_palette;
    QVector<QByteArray> m_states;
    QString m_fault;
    bool m_moved = false;
};

}  // namespace

class TestImageUndo : public QObject
{
    Q_OBJECT

private slots:
    void everyStepGoesBackAndForth();
    void oldestStepsGoFirst();
    void stepsThatDoNothingAreNone();
    void canceledMacroLeavesNothing();
    void undoEndsAStroke();
    void onePixelIsSmall();
    void strokesStayInsideTheBudget();
    void packedStepsComeBack();
};

void TestImageUndo::everyStepGoesBackAndForth()
{
    const int runs = qMax(1, qEnvironmentVariableIntValue("ZORV_TEST_RUNS"));
    for (int run = 0; run < runs; ++run) {
        CanvasMonkey monkey(seed + uint(run));
        monkey.survive(800, 50);
        if (QTest::currentTestFailed()) {
            return;
        }
        monkey.walk();
    }
}

void TestImageUndo::oldestStepsGoFirst()
{
    int number = 0;
    ImageUndoStack stack;
    stack.setBudget(35);
    stack.beginMacro(QStringLiteral("two"));
    stack.push(new AddCommand(number, 1));
    stack.push(new AddCommand(number, 2));
    stack.endMacro();
    stack.setClean();
    stack.push(new AddCommand(number, 4));
    QCOMPARE(stack.count(), 2);
    stack.push(new AddCommand(number, 8));
    // The macro went as a whole; in front of the next step is still what was saved.
    QCOMPARE(stack.count(), 2);
    QCOMPARE(stack.byteSize(), 20);
    stack.undo();
    stack.undo();
    QVERIFY(stack.isClean() && !stack.canUndo());
    QCOMPARE(number, 3);
    stack.redo();
    stack.push(new AddCommand(number, 16, 100));  // the last one stays, whatever its size
    QCOMPARE(stack.count(), 1);
    stack.undo();
    QCOMPARE(number, 7);
    QVERIFY(!stack.isClean());
}

void TestImageUndo::stepsThatDoNothingAreNone()
{
    int number = 0;
    ImageUndoStack stack;
    stack.push(new AddCommand(number, 1, 10, 5));
    stack.push(new AddCommand(number, 2, 10, 5));
    QCOMPARE(stack.count(), 1);
    stack.push(new AddCommand(number, -3, 10, 5));
    QCOMPARE(stack.count(), 0);
    QVERIFY(stack.isClean());
    stack.beginMacro(QStringLiteral("empty"));
    stack.endMacro();
    QCOMPARE(stack.count(), 0);
    stack.push(new AddCommand(number, 1, 10, 5));
    stack.setClean();
    stack.push(new AddCommand(number, 1, 10, 5));  // the clean state can be reached again
    QCOMPARE(stack.count(), 2);
    stack.undo();
    QVERIFY(stack.isClean());
    stack.seal();
    stack.push(new AddCommand(number, 1, 10, 5));
    QCOMPARE(stack.count(), 2);
    stack.push(new AddCommand(number, 1, 10, 6));
    stack.undo();
    stack.push(new AddCommand(number, 1, 10, 5));  // what undo stopped at stays a step
    QCOMPARE(stack.count(), 3);

    ImageCanvas canvas;
    canvas.setSize({5, 5}, {}, false);
    ImageLayer* const layer = canvas.newRasterLayer({});
    layer->setOpacity(0.5, true);
    layer->setOpacity(0.25, true);
    QCOMPARE(canvas.undoStack()->count(), 2);
    layer->setOpacity(1.0, true);
    QCOMPARE(canvas.undoStack()->count(), 1);
    canvas.changing(layer);
    layer->pixels()->fill(0xFFFFFFFF);
    layer->pixels()->fill(0);
    canvas.endStroke();
    QCOMPARE(canvas.undoStack()->count(), 1);
}

void TestImageUndo::canceledMacroLeavesNothing()
{
    int number = 0;
    ImageUndoStack stack;
    stack.beginMacro(QStringLiteral("outer"));
    stack.push(new AddCommand(number, 1));
    stack.beginMacro(QStringLiteral("inner"));
    stack.push(new AddCommand(number, 2));
    stack.cancelMacro();
    stack.endMacro();
    QCOMPARE(number, 1);
    QCOMPARE(stack.undoText(), QStringLiteral("outer"));
    stack.undo();
    QCOMPARE(number, 0);
    stack.beginMacro(QStringLiteral("nothing"));
    stack.push(new AddCommand(number, 4));
    stack.cancelMacro();
    stack.redo();
    QCOMPARE(number, 1);
}

void TestImageUndo::undoEndsAStroke()
{
    ImageCanvas canvas;
    canvas.setSize({5, 5}, {}, false);
    ImageLayer* const layer = canvas.newRasterLayer({});
    canvas.undoStack()->setClean();
    QSignalSpy clean(canvas.undoStack(), &ImageUndoStack::cleanChanged);
    for (const auto kind : {ImageCanvas::WholeStroke, ImageCanvas::TiledStroke}) {
        for (const QRgb color : {0U, 0xFF000000U}) {
            canvas.beginStroke(layer, kind, {});
            canvas.willChange({0, 0, 1, 1});
            layer->pixels()->setPixel(0, 0, color);
            QCOMPARE(canvas.undoStack()->undoText(), QStringLiteral("edit"));
            canvas.endStroke();
            // It is not clean from its begin on, and never between.
            QCOMPARE(clean.count(), color ? 1 : 2);
            QCOMPARE(canvas.undoStack()->isClean(), color == 0);
            clean.clear();
        }
        canvas.undoStack()->undo();
        clean.clear();
    }
    // One that has announced nothing, on a layer that goes, too.
    canvas.beginStroke(layer, ImageCanvas::TiledStroke, {});
    canvas.undoStack()->undo();
    QVERIFY(!canvas.isStroking() && !canvas.undoStack()->canUndo());
}

void TestImageUndo::onePixelIsSmall()
{
    for (const auto kind : {ImageCanvas::WholeStroke, ImageCanvas::TiledStroke}) {
        ImageCanvas canvas;
        canvas.setSize({1024, 1024}, {}, false);
        ImageLayer* const layer = canvas.newRasterLayer({});
        canvas.undoStack()->clear();
        canvas.beginStroke(layer, kind, {});
        canvas.willChange({500, 500, 1, 1});
        layer->pixels()->setPixel(500, 500, 0xFF000000);
        canvas.endStroke();
        QVERIFY(canvas.undoStack()->byteSize() <= 64 << 10);
        canvas.undoStack()->undo();
        QCOMPARE(layer->image().pixel(500, 500), 0U);
    }
}

void TestImageUndo::strokesStayInsideTheBudget()
{
    QRandomGenerator random(seed);
    ImageCanvas canvas;
    canvas.setSize({512, 512}, {}, false);
    ImageLayer* const layer = canvas.newRasterLayer({});
    canvas.undoStack()->setBudget(200 << 10);
    for (int i = 0; i < 300; ++i) {
        canvas.changing(layer);
        for (int noise = 0; noise < 200; ++noise) {
            layer->pixels()->setPixel(random.bounded(128), random.bounded(128), random.generate());
        }
        canvas.endStroke();
        QVERIFY(canvas.undoStack()->byteSize() <= canvas.undoStack()->budget());
        QVERIFY(canvas.undoStack()->count() >= 1);
    }
}

void TestImageUndo::packedStepsComeBack()
{
    ImageCanvas canvas;
    canvas.setSize({512, 512}, {}, false);
    ImageLayer* const layer = canvas.newRasterLayer({});
    canvas.newRasterLayer({});
    canvas.undoStack()->clear();
    canvas.undoStack()->setBudget(8 << 20);
    QVector<QByteArray> states = {stateOf(canvas)};
    for (int i = 0; i < 12; ++i) {
        canvas.changing(layer);
        layer->pixels()->fill(0xFF000000 + unsigned(i));
        canvas.endStroke();
        if (i == 2) {
            states += stateOf(canvas);
            canvas.layers()->remove(0U, true);
        }
        states += stateOf(canvas);
    }
    // Each step holds a MiB of one colour, more than the budget; old ones next to nothing.
    QCOMPARE(canvas.undoStack()->count(), 13);
    QVERIFY(canvas.undoStack()->byteSize() < 4 << 20);
    for (int i = states.size() - 1; i >= 0; --i) {
        QCOMPARE(stateOf(canvas), states[i]);
        canvas.undoStack()->undo();
        QVERIFY(canvas.undoStack()->byteSize() <= canvas.undoStack()->budget());
    }
    for (const QByteArray& state : qAsConst(states)) {
        QCOMPARE(stateOf(canvas), state);
        canvas.undoStack()->redo();
        QVERIFY(canvas.undoStack()->byteSize() <= canvas.undoStack()->budget());
    }
}

QTEST_GUILESS_MAIN(TestImageUndo)
#include "tst_imageundo.moc"
