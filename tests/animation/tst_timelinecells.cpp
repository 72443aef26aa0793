#include "animation/timeline/timelinecells.h"

#include "animation/timeline/timeline.h"
#include "animation/timeline/timelinewidget.h"

#include <QAction>
#include <QApplication>
#include <QMimeData>
#include <QPointer>
#include <QRandomGenerator>
#include <QSignalSpy>
#include <QtTest>

#include <algorithm>

using namespace Zorv;

namespace {

constexpr int Endless = -1;
constexpr int Visible = 300;  // ticks
const QColor Colour(160, 140, 40);

/// A cell is a number that it keeps wherever it goes, and a length.
struct PlainCell
{
    int id;
    int length;
    bool operator==(const PlainCell& other) const
    {
        return id == other.id && length == other.length;
    }
};

using PlainCells = QVector<PlainCell>;

/// The place of the cell at a tick, -1 behind the last.
int plainIndexAt(const PlainCells& cells, qint64 tick)
{
    qint64 start = 0;
    for (int i = 0; i < cells.size(); ++i) {
        if (cells.at(i).length < 0 || tick < start + cells.at(i).length) {
            return i;
        }
        start += cells.at(i).length;
    }
    return -1;
}

qint64 plainStart(const PlainCells& cells, int index)
{
    qint64 start = 0;
    for (int i = 0; i < index; ++i) {
        start += std::max(cells.at(i).length, 0);
    }
    return start;
}

/// Cells `moved`, by place, in front of the one at `target`.
PlainCells plainMove(const PlainCells& cells, const QVector<int>& moved, int target)
{
    PlainCells result;
    for (int i = 0; i <= cells.size(); ++i) {
        if (i == target) {
            for (const int index : moved) {
                result.append(cells.at(index));
            }
        }
        if (i < cells.size() && !moved.contains(i)) {
            result.append(cells.at(i));
        }
    }
    return result;
}

class Row : public TimeLine, public TimeLineCells
{
public:
    explicit Row(PlainCells plain = {}) : cellList(std::move(plain)) {}

    QString name() const override { return QStringLiteral("Row"); }
    bool markerAtTick(unsigned tick, Marker& marker) const override
    {
        const int index = isLong ? int(tick) : plainIndexAt(cellList, tick);
        marker = {Colour, cellList.value(index).length};
        return index >= 0 && at(index).firstTick == tick;
    }
    TimeLineCells* cells() override { return this; }

    int count() const override { return cellList.size(); }
    Cell at(int index) const override
    {
        ++asked;
        return {isLong ? unsigned(index) : unsigned(plainStart(cellList, index)),
                cellList.at(index).length};
    }
    int indexAt(unsigned tick) const override
    {
        ++asked;
        return isLong ? int(tick) : plainIndexAt(cellList, tick);
    }
    bool isEditable() const override { return editable; }
    bool setLengths(const QVector<int>& indexes, const QVector<int>& lengths) override
    {
        steps.append(cellList);
        for (int i = 0; i < indexes.size(); ++i) {
            cellList[indexes.at(i)].length = lengths.at(i);
        }
        return true;
    }
    bool move(const QVector<int>& indexes, int target) override
    {
        steps.append(cellList);
        cellList = plainMove(cellList, indexes, target);
        return true;
    }
    bool accepts(const QMimeData* data) const override { return data->hasText(); }
    void drop(const QMimeData* data, int index) override
    {
        steps.append(cellList);
        cellList.insert(index, {data->text().toInt(), 5});
    }

    PlainCells cellList;
    QVector<PlainCells> steps;
    bool editable = true;
    bool isLong = false;  // of cells of one tick
    mutable int asked = 0;
};

/// A strip as it should be, by walking over all cells.
struct Model
{
    PlainCells cells;
    QSet<int> selected;
    int anchor = 0;
    int current = -1;
    qint64 tick = 0;
    int edits = 0;

    QVector<int> sorted() const
    {
        QVector<int> places(selected.begin(), selected.end());
        std::sort(places.begin(), places.end());
        return places;
    }
    QVector<int> acted() const
    {
        const int shown = plainIndexAt(cells, tick);
        return !selected.isEmpty() ? sorted() : shown >= 0 ? QVector<int>{shown} : QVector<int>{};
    }
    void only(int place)
    {
        selected = {place};
        anchor = current = place;
    }
    void click(int place, Qt::KeyboardModifiers modifiers)
    {
        if (modifiers & Qt::ShiftModifier && !selected.isEmpty()) {
            selected.clear();
            for (int i = std::min(anchor, place); i <= std::max(anchor, place); ++i) {
                selected.insert(i);
            }
        } else if (modifiers & Qt::ControlModifier) {
            selected.contains(place) ? void(selected.remove(place)) : void(selected.insert(place));
            anchor = place;
        } else {
            only(place);
        }
        current = place;
    }
    void lengthen(const QVector<int>& places, int change, int dragged)
    {
        const PlainCells before = cells;
        for (const int place : places) {
            int& length = cells[place].length;
            if (place == dragged && change != 0) {
                length = std::max(std::max(length, 1) + change, 1);
            } else if (length > 0 || (length == 0 && dragged < 0 && change > 0)) {
                length = std::max(length + change, 1);
            }
        }
        edits += cells == before ? 0 : 1;
    }
    void move(int target)
    {
        const QVector<int> moved = acted();
        const PlainCells before = cells;
        cells = plainMove(cells, moved, target);
        if (cells != before) {
            ++edits;
            selected.clear();
            for (const int place : moved) {
                selected.insert(cells.indexOf(before.at(place)));
            }
            anchor = sorted().first();
            current = sorted().last();
        }
    }
};

/// Other than QTest's, also outside of the widget.
void moveMouse(QWidget* widget, const QPoint& place)
{
    QMouseEvent event(QEvent::MouseMove, place, Qt::NoButton, Qt::LeftButton, {});
    QCoreApplication::sendEvent(widget, &event);
}

}  // namespace

class TestTimeLineCells : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        row = std::make_unique<Row>(PlainCells{{0, 5}, {1, 3}, {2, 1}, {3, 0}, {4, 6}, {5, 4}});
        widget = std::make_unique<TimeLineWidget>();
        widget->addTimeLine(row.get());
        widget->resize(125 + 6 * Visible, 60);
        widget->show();
        QVERIFY(QTest::qWaitForWindowActive(widget.get()));
        widget->setFocus();
        before = row->cellList;
    }
    void cleanup()
    {
        widget.reset();
        row.reset();
    }

    void randomActs();
    void givenUp_data();
    void givenUp();
    void range();
    void dropped();
    void cellsGo();
    void pastThePage();
    void shapes();
    void menu();
    void keysOfTheWindow();
    void painted();
    void costOfPainting();

private:
    /// The middle of a tick, where no edge is caught.
    QPoint place(qint64 tick) const { return {int(125 + 6 * (tick - first()) + 2), 35}; }
    QPoint edge(qint64 tick) const { return place(tick) - QPoint(3, 0); }
    qint64 first() const
    {
        const qint64 tick = widget->currentTick();
        return (tick - tick % Visible) / 10 * 10;
    }
    void drag(const QPoint& from, const QPoint& to, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::mousePress(widget.get(), Qt::LeftButton, modifiers, from);
        moveMouse(widget.get(), (from + to) / 2);
        moveMouse(widget.get(), to);
        QCOMPARE(row->cellList, before);
        QTest::mouseRelease(widget.get(), Qt::LeftButton, modifiers, to);
    }
    /// All that a person could have changed.
    QString state() const
    {
        QString text;
        for (const PlainCell& cell : row->cellList) {
            text += QStringLiteral("%1:%2 ").arg(cell.id).arg(cell.length);
        }
        for (const int cell : widget->selectedCells()) {
            text += QStringLiteral(" %1").arg(cell);
        }
        const std::optional<TickRange> range = widget->loopRange();
        return range ? text + QStringLiteral("  %1-%2").arg(range->first).arg(range->last) : text;
    }
    void randomClick(Model& model, QRandomGenerator& random);
    void randomEdge(Model& model, QRandomGenerator& random);
    void randomMove(Model& model, QRandomGenerator& random);
    void randomKey(Model& model, QRandomGenerator& random);

    std::unique_ptr<TimeLineWidget> widget;
    std::unique_ptr<Row> row;
    PlainCells before;
};

void TestTimeLineCells::randomClick(Model& model, QRandomGenerator& random)
{
    const Qt::KeyboardModifiers all[] = {{}, {}, Qt::ControlModifier, Qt::ShiftModifier};
    const Qt::KeyboardModifiers modifiers = all[random.bounded(4)];
    const qint64 tick = first() + random.bounded(60);
    QTest::mouseClick(widget.get(), Qt::LeftButton, modifiers, place(tick));
    const int index = plainIndexAt(model.cells, tick);
    const bool isDrawn =
        index >= 0 && (model.cells.at(index).length > 0 || tick == plainStart(model.cells, index));
    if (isDrawn) {
        model.click(index, modifiers);
        model.tick = model.selected.contains(index) ? tick : model.tick;
    } else {
        model.tick = tick;
        model.selected = modifiers == Qt::NoModifier ? QSet<int>() : model.selected;
    }
}

void TestTimeLineCells::randomEdge(Model& model, QRandomGenerator& random)
{
    const int index = plainIndexAt(model.cells, first() + random.bounded(60));
    if (index < 0) {
        return;
    }
    const int length = std::max(model.cells.at(index).length, 1);
    const qint64 end = plainStart(model.cells, index) + length;
    if (end <= first() || end > first() + Visible) {
        return;
    }
    const bool isSelected = model.selected.contains(index);
    const QVector<int> places = isSelected ? model.sorted() : QVector<int>{index};
    const int moving = int(std::count_if(places.begin(), places.end(), [&](int place) {
        return place == index || (place < index && model.cells.at(place).length > 0);
    }));
    // Nothing is dragged to the left of the page.
    const int change = std::max(random.bounded(-4, 8), int(first() - end) / moving);
    drag(edge(end), edge(end + change * moving));
    model.lengthen(places, change, change == 0 ? -1 : index);
}

void TestTimeLineCells::randomMove(Model& model, QRandomGenerator& random)
{
    const qint64 from = first() + random.bounded(60);
    const qint64 to = first() + random.bounded(80);
    const int index = plainIndexAt(model.cells, from);
    const bool isDrawn =
        index >= 0 && (model.cells.at(index).length > 0 || from == plainStart(model.cells, index));
    if (!isDrawn || from == model.tick || std::abs(from - to) < 2) {
        return;
    }
    const QPoint half(random.bounded(2) * 2, 0);
    drag(place(from), place(to) + half);
    if (!model.selected.contains(index)) {
        model.only(index);
    }
    int target = plainIndexAt(model.cells, to);
    if (target >= 0) {
        const int length = model.cells.at(target).length;
        const qint64 start = plainStart(model.cells, target);
        const qint64 pixel = (to - start) * 6 + 2 + half.x();
        target = length < 0 && pixel >= 6           ? model.cells.size()
                 : 2 * pixel < 6 * std::abs(length) ? target
                                                    : target + 1;
    } else {
        target = model.cells.size();
    }
    model.move(target);
}

void TestTimeLineCells::randomKey(Model& model, QRandomGenerator& random)
{
    const QVector<int> acted = model.acted();
    const bool isUsable = !acted.isEmpty();
    switch (random.bounded(7)) {
    case 0:
        QTest::keyClick(widget.get(), Qt::Key_Plus);
        model.lengthen(acted, 1, -1);
        break;
    case 1:
        QTest::keyClick(widget.get(), Qt::Key_Minus);
        model.lengthen(acted, -1, -1);
        break;
    case 2:
        QTest::keyClick(widget.get(), Qt::Key_Left, Qt::AltModifier);
        if (isUsable) {
            model.move(std::max(acted.first() - 1, 0));
        }
        break;
    case 3:
        QTest::keyClick(widget.get(), Qt::Key_Right, Qt::AltModifier);
        if (isUsable) {
            model.move(std::min(acted.last() + 2, model.cells.size()));
        }
        break;
    case 4:
        if (const int shown = plainIndexAt(model.cells, model.tick); shown >= 0) {
            QTest::keyClick(widget.get(), Qt::Key_Right, Qt::ControlModifier);
            const qint64 end = plainStart(model.cells, shown) + model.cells.at(shown).length;
            const int next = plainIndexAt(model.cells, end);
            if (next > shown) {
                model.only(next);
                model.tick = end;
            }
        }
        break;
    case 5:
        if (const int shown = plainIndexAt(model.cells, model.tick);
            shown >= 0 && model.selected.isEmpty()) {
            QTest::keyClick(widget.get(), Qt::Key_Left, Qt::ShiftModifier);
            const qint64 start = plainStart(model.cells, shown);
            model.only(shown);
            if (start > 0) {
                model.click(plainIndexAt(model.cells, start - 1), Qt::ShiftModifier);
                model.tick = plainStart(model.cells, plainIndexAt(model.cells, start - 1));
            }
        }
        break;
    default:
        QTest::keyClick(widget.get(), Qt::Key_Right);
        ++model.tick;
    }
}

void TestTimeLineCells::randomActs()
{
    int edits = 0;
    const int runs = qMax(12, qEnvironmentVariableIntValue("ZORV_TEST_RUNS"));
    for (int seed = 1; seed <= runs; ++seed) {
        QRandomGenerator random(unsigned(seed) * 97);
        cleanup();
        init();
        if (seed % 3 == 0) {
            row->cellList.append({6, Endless});
            row->cellList.append({7, 3});
        }
        Model model;
        model.cells = row->cellList;
        for (int i = 0; i < 150; ++i) {
            before = row->cellList;
            switch (random.bounded(4)) {
            case 0:
                randomClick(model, random);
                break;
            case 1:
                randomEdge(model, random);
                break;
            case 2:
                randomMove(model, random);
                break;
            default:
                randomKey(model, random);
            }
            const std::string text = "seed " + std::to_string(seed) + ", " + std::to_string(i);
            const char* const where = text.c_str();
            QVERIFY2(row->cellList == model.cells, where);
            QVERIFY2(widget->selectedCells() == model.sorted(), where);
            QVERIFY2(widget->currentTick() == unsigned(model.tick), where);
            QVERIFY2(row->steps.size() == model.edits, where);
        }
        edits += model.edits;
    }
    QVERIFY2(edits > 500, qPrintable(QString::number(edits)));
}

void TestTimeLineCells::givenUp_data()
{
    QTest::addColumn<QString>("by");
    QTest::addRow("Escape") << "Escape";
    QTest::addRow("another number of cells") << "count";
    QTest::addRow("another time of the cell") << "length";
    QTest::addRow("nothing to edit any more") << "locked";
    QTest::addRow("the clock") << "clock";
    QTest::addRow("no row") << "rows";
    QTest::addRow("hidden") << "hidden";
}

// Whatever comes in between, nothing is written, and the release does nothing more.
void TestTimeLineCells::givenUp()
{
    QFETCH(QString, by);
    for (const bool isEdge : {true, false}) {
        init();
        QTest::mousePress(widget.get(), Qt::LeftButton, {}, isEdge ? edge(8) : place(6));
        moveMouse(widget.get(), place(15));
        if (by == "Escape") {
            QTest::keyClick(widget.get(), Qt::Key_Escape);
        } else if (by == "count") {
            row->cellList.removeLast();
        } else if (by == "length") {
            row->cellList[isEdge ? 1 : 5].length += isEdge ? 1 : 0;
            row->editable = isEdge;
        } else if (by == "locked") {
            row->editable = false;
        } else if (by == "clock") {
            widget->play();
            widget->stop();
        } else if (by == "rows") {
            widget->clearTimeLines();
        } else {
            widget->hide();
        }
        widget->grab();
        QTest::mouseRelease(widget.get(), Qt::LeftButton, {}, place(15));
        QCOMPARE(row->steps.size(), 0);
        QCOMPARE(widget->currentTick(), 0U);
        cleanup();
    }
    init();
}

void TestTimeLineCells::range()
{
    const QPoint up(0, 30);
    const auto expect = [this](unsigned from, unsigned to) {
        const TickRange shown = widget->loopRange().value_or(TickRange{999, 999});
        QCOMPARE(qMakePair(shown.first, shown.last), qMakePair(from, to));
    };
    QSignalSpy told(widget.get(), &TimeLineWidget::loopRangeChanged);
    drag(place(12) - up, place(4) - up);
    expect(4, 12);
    drag(edge(13) - up, place(20) - up);
    expect(4, 20);
    drag(place(4) - up - QPoint(4, 0), place(6) - up);
    expect(6, 20);
    QCOMPARE(widget->currentTick(), 0U);
    QTest::mouseClick(widget.get(), Qt::LeftButton, {}, place(10) - up);
    QCOMPARE(widget->currentTick(), 10U);
    expect(6, 20);
    widget->play();
    QTest::keyClick(widget.get(), Qt::Key_I);
    expect(10, 20);
    widget->stop();
    widget->setCurrentTick(8);
    QTest::keyClick(widget.get(), Qt::Key_O);
    expect(8, 8);
    widget->setSelectedCells({2, 1, 3});
    QTest::keyClick(widget.get(), Qt::Key_L);
    expect(5, 8);
    QTest::mouseDClick(widget.get(), Qt::LeftButton, {}, place(7) - up);
    QVERIFY(!widget->loopRange());
    QCOMPARE(told.count(), 7);
}

void TestTimeLineCells::dropped()
{
    QMimeData data;
    const auto over = [&](const QPoint& place) {
        QDragEnterEvent enter(place, Qt::CopyAction, &data, Qt::LeftButton, {});
        QCoreApplication::sendEvent(widget.get(), &enter);
        return enter.isAccepted();
    };
    const auto drop = [&](const QPoint& place) {
        QDropEvent event(place, Qt::CopyAction, &data, Qt::LeftButton, {});
        QCoreApplication::sendEvent(widget.get(), &event);
        return event.isAccepted();
    };
    QVERIFY(!over(place(6)));
    data.setText(QStringLiteral("77"));
    row->editable = false;
    QVERIFY(!over(place(6)));
    row->editable = true;
    QVERIFY(over(place(6)));
    const QImage marked = widget->grab().toImage();
    QDragLeaveEvent leave;
    QCoreApplication::sendEvent(widget.get(), &leave);
    QVERIFY(widget->grab().toImage() != marked);
    QVERIFY(!drop(place(6)));
    QCOMPARE(row->cellList.size(), 6);
    QVERIFY(over(place(9)) && drop(place(5)));
    QCOMPARE(row->cellList.at(1).id, 77);
    QVERIFY(over(place(9)) && drop(place(200)));
    QCOMPARE(row->cellList.last().id, 77);
    row->cellList.clear();
    QVERIFY(over(place(9)) && drop(place(0)));
    QCOMPARE(state(), QStringLiteral("77:5 "));
}

// A drag that hangs over the end of the page goes on to cells that were not in sight.
/// Away from under the selection, by an edit of the text.
void TestTimeLineCells::cellsGo()
{
    QTest::mouseClick(widget.get(), Qt::LeftButton, {}, place(16));
    row->cellList.resize(2);
    widget->update();
    QTest::keyClick(widget.get(), Qt::Key_Left, Qt::ShiftModifier);
    QCOMPARE(widget->selectedCells(), QVector<int>{0});
}

void TestTimeLineCells::pastThePage()
{
    row->cellList = PlainCells(400, {1, 1});
    row->cellList[3].id = 9;
    QTest::mousePress(widget.get(), Qt::LeftButton, {}, place(3));
    moveMouse(widget.get(), place(20));
    moveMouse(widget.get(), {widget->width() + 5, 35});
    QTest::qWait(350);
    QTest::mouseRelease(widget.get(), Qt::LeftButton, {}, {widget->width() - 1, 35});
    QVERIFY(row->cellList.indexOf({9, 1}) > Visible + 5);
    QTest::mouseClick(widget.get(), Qt::LeftButton, {}, place(7));
    QCOMPARE(widget->currentTick(), 7U);
}

void TestTimeLineCells::shapes()
{
    const auto shape = [this](const QPoint& place) {
        QMouseEvent event(QEvent::MouseMove, place, Qt::NoButton, Qt::NoButton, {});
        QCoreApplication::sendEvent(widget.get(), &event);
        return widget->cursor().shape();
    };
    QCOMPARE(shape(place(0)), Qt::SizeHorCursor);
    QCOMPARE(shape(place(3)), Qt::OpenHandCursor);
    QCOMPARE(shape(edge(5)), Qt::SplitHCursor);
    // The end of a cell is in reach while the last of its ticks is the present one.
    widget->setCurrentTick(4);
    QCOMPARE(shape(place(4)), Qt::SizeHorCursor);
    QCOMPARE(shape(edge(5)), Qt::SplitHCursor);
    widget->setCurrentTick(0);
    QCOMPARE(shape(place(50)), Qt::ArrowCursor);
    QCOMPARE(shape({300, 3}), Qt::CrossCursor);
    QCOMPARE(shape({300, 15}), Qt::ArrowCursor);
    row->editable = false;
    QCOMPARE(shape(place(3)), Qt::ArrowCursor);
    QCOMPARE(shape(edge(5)), Qt::ArrowCursor);
}

// Every item does something, and what it is for has a key that does the same.
void TestTimeLineCells::menu()
{
    const int count = widget->actions().size();
    QVERIFY(count >= 9);
    for (int i = 0; i < count; ++i) {
        QStringList states;
        for (const bool isByKey : {false, true}) {
            cleanup();
            init();
            widget->setLoopRange(TickRange{2, 20});
            widget->setCurrentTick(7);
            QTest::mouseClick(widget.get(), Qt::RightButton, {}, place(6));
            QCOMPARE(widget->selectedCells(), QVector<int>{1});
            QAction* item = widget->actions().at(i);
            const QKeySequence keys(item->text().section('\t', 1), QKeySequence::NativeText);
            const QString atFirst = state();
            QVERIFY(keys.count() == 1 && item->isEnabled());
            if (isByKey) {
                QTest::keyClick(widget.get(), Qt::Key(keys[0] & ~Qt::KeyboardModifierMask),
                                Qt::KeyboardModifiers(keys[0] & int(Qt::KeyboardModifierMask)));
            } else {
                item->trigger();
            }
            QVERIFY2(state() != atFirst, qPrintable(item->text()));
            states.append(state());
        }
        QCOMPARE(states.first(), states.last());
    }
    row->editable = false;
    QTest::mouseClick(widget.get(), Qt::RightButton, {}, place(6));
    QVERIFY(!widget->actions().first()->isEnabled());
    widget->clearTimeLines();
    QVERIFY(widget->actions().isEmpty());
}

// A key of the strip does not start what a window has on it, others do.
void TestTimeLineCells::keysOfTheWindow()
{
    const auto isTaken = [this](int key, Qt::KeyboardModifiers modifiers) {
        QKeyEvent event(QEvent::ShortcutOverride, key, modifiers);
        event.ignore();
        QCoreApplication::sendEvent(widget.get(), &event);
        return event.isAccepted();
    };
    QVERIFY(isTaken(Qt::Key_Left, Qt::AltModifier));
    QVERIFY(isTaken(Qt::Key_A, Qt::ControlModifier));
    QVERIFY(!isTaken(Qt::Key_Escape, {}));
    QVERIFY(!isTaken(Qt::Key_S, Qt::ControlModifier));
    QTest::mousePress(widget.get(), Qt::LeftButton, {}, edge(5));
    moveMouse(widget.get(), place(9));
    QVERIFY(isTaken(Qt::Key_Escape, {}));
    widget->clearTimeLines();
    QVERIFY(!isTaken(Qt::Key_Left, Qt::AltModifier));
}

void TestTimeLineCells::painted()
{
    widget->setCurrentTick(60);
    const QImage plain = widget->grab().toImage();
    const auto changed = [&] {
        QString ticks;
        const QImage image = widget->grab().toImage();
        for (int tick = 0; tick < 24; ++tick) {
            bool isOther = false;
            for (int x = 0; x < 6; ++x) {
                const QPoint at = place(tick) + QPoint(x - 2, -10);
                isOther = isOther || image.pixel(at) != plain.pixel(at);
            }
            ticks += isOther ? '#' : '.';
        }
        return ticks;
    };
    widget->setSelectedCells({1, 5, 17});
    QCOMPARE(changed(), QStringLiteral(".....####......#####...."));
    widget->setSelectedCells({});
    QTest::mousePress(widget.get(), Qt::LeftButton, {}, edge(5));
    moveMouse(widget.get(), edge(12));
    QVERIFY(changed().startsWith(QStringLiteral("...........#")));
    QTest::keyClick(widget.get(), Qt::Key_Escape);
    QCOMPARE(changed(), QString(24, '.'));
}

// Ten thousand cells are asked for no more than those in sight.
void TestTimeLineCells::costOfPainting()
{
    row->isLong = true;
    row->cellList = PlainCells(10000, {1, 1});
    widget->setSelectedCells({1, 7, 5000});
    row->asked = 0;
    widget->grab();
    QVERIFY(row->asked > 0);
    QVERIFY2(row->asked <= 4 * Visible, qPrintable(QString::number(row->asked)));
}

QTEST_MAIN(TestTimeLineCells)
#include "tst_timelinecells.moc"
