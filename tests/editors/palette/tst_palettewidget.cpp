#include "editors/palette/palettewidget.h"

#include "media/paletteobject.h"

#include <QMouseEvent>
#include <QPainter>
#include <QRandomGenerator>
#include <QSignalSpy>
#include <QtTest>

#include <cmath>
#include <functional>

using namespace Zorv;

namespace {

using Colors = QVector<unsigned>;
using Work = std::function<void(PaletteWidget*)>;

Colors colorsOf(const PaletteWidget& widget)
{
    RGBA colors[256];
    widget.palette()->toPalette(colors);
    Colors all;
    for (const RGBA color : colors) {
        all.append(qRgba(color.r, color.g, color.b, color.a));
    }
    return all;
}

QString selected(const PaletteWidget& widget)
{
    QStringList all;
    for (int i = 0; i < 256; ++i) {
        if (widget.selection[i]) {
            all.append(QString::number(i));
        }
    }
    return all.join(' ');
}

/// The middle of a slot of the usual grid.
QPoint place(int slot)
{
    return {slot % 16 * 12 + 6, slot / 16 * 12 + 6};
}

void send(QWidget* widget, QEvent::Type type, const QPointF& at, Qt::MouseButton button = {})
{
    const Qt::MouseButtons held = type == QEvent::MouseButtonRelease ? Qt::NoButton : button;
    QMouseEvent event(type, at, button, held, {});
    QCoreApplication::sendEvent(widget, &event);
}

void drag(QWidget* widget, int from, const QPoint& to)
{
    send(widget, QEvent::MouseButtonPress, place(from), Qt::LeftButton);
    send(widget, QEvent::MouseMove, to);
}

void drop(QWidget* widget, const QPoint& at, Qt::MouseButton button = Qt::LeftButton)
{
    send(widget, QEvent::MouseButtonRelease, at, button);
}

Work click(int slot, Qt::KeyboardModifiers modifiers = {}, Qt::MouseButton button = Qt::LeftButton)
{
    return [=](QWidget* widget) { QTest::mouseClick(widget, button, modifiers, place(slot)); };
}

Work key(Qt::Key key, Qt::KeyboardModifiers modifiers = {})
{
    return [=](QWidget* widget) { QTest::keyClick(widget, key, modifiers); };
}

/// What a history of twelve states is, without any cleverness.
struct SlowHistory
{
    QVector<Colors> states;
    int at = 0;
    Colors now = Colors(256, 0xff000000);
    bool isLocked = false;

    void change(const Colors& colors)
    {
        now = colors;
        if (isLocked) {
            store();
            return;
        }
        states = states.mid(0, at + 1);
        states.append(colors);
        states = states.mid(std::max(states.size() - 12, 0));
        at = states.size() - 1;
    }
    void store()
    {
        if (at < states.size()) {
            states[at] = now;
        }
    }
    void go(int by)
    {
        if (!isLocked && at + by >= 0 && at + by < states.size()) {
            at += by;
            now = states[at];
        }
    }
};

}  // namespace

Q_DECLARE_METATYPE(Work)
Q_DECLARE_METATYPE(QVector<Work>)

class TestPaletteWidget : public QObject
{
    Q_OBJECT

private slots:
    void history();
    void select_data();
    void select();
    void noDrag_data();
    void noDrag();
    void goesToSomebodyElse();
    void sharpAtAnyScale_data();
    void sharpAtAnyScale();
    void shortcutsWait();
};

void TestPaletteWidget::history()
{
    QRandomGenerator random(1717);
    PaletteWidget widget;
    SlowHistory slow;
    const auto slot = [&random] { return random.bounded(256); };
    for (int i = 0; i < 4000; ++i) {
        QSignalSpy changed(&widget, &PaletteWidget::changed);
        const Colors before = slow.now;
        const int from = slot();
        const int to = slot();
        switch (random.bounded(24)) {
        case 0:
            widget.flatten();
            if (!slow.isLocked) {
                slow.states = {slow.now};
                slow.at = 0;
            }
            break;
        case 1:
            widget.reset();
            if (!slow.isLocked) {
                slow.states.clear();
                slow.at = 0;
                slow.now.fill(0);
            }
            break;
        case 2:
            slow.isLocked = i % 2;
            widget.setLocked(slow.isLocked);
            break;
        case 3:
        case 4:
        case 5:
            slow.now.move(from, to);
            slow.change(slow.now);
            drag(&widget, from, place(to == from ? (to + 1) % 256 : to));
            drop(&widget, place(to));
            QCOMPARE(changed.size(), 1);
            break;
        case 6:
        case 7:
        case 8:
        case 9:
        case 10:
            slow.go(-1);
            widget.undo();
            break;
        case 11:
        case 12:
        case 13:
            slow.go(1);
            widget.redo();
            break;
        default: {
            const auto color = static_cast<quint8>(i);
            slow.now[from] = qRgba(color, 0, 0, 7);
            slow.change(slow.now);
            widget.palette()->setColor(static_cast<unsigned char>(from), {color, 0, 0, 7});
        }
        }
        QCOMPARE(colorsOf(widget), slow.now);
        QCOMPARE(widget.canUndo(), slow.at > 0);
        QCOMPARE(widget.canRedo(), slow.at + 1 < slow.states.size());
        QVERIFY(changed.size() == 1 || before == slow.now || slow.states.isEmpty());
    }
}

void TestPaletteWidget::select_data()
{
    QTest::addColumn<QVector<Work>>("steps");
    QTest::addColumn<QString>("selection");
    QTest::addColumn<int>("selections");
    QTest::addColumn<int>("several");
    QTest::addColumn<QString>("clicks");

    const auto ctrl = Qt::ControlModifier;
    const auto shift = Qt::ShiftModifier;
    const auto row = [](const char* name, const QVector<Work>& steps, const char* selection,
                        int selections, int several, const char* clicks) {
        QTest::newRow(name) << steps << QString(selection) << selections << several
                            << QString(clicks);
    };
    row("the last one", {click(3), click(5)}, "5", 2, 0, "3 5");
    row("Ctrl adds and leaves", {click(5), click(9, ctrl), click(9, ctrl)}, "5 9", 3, 0, "5 9 9");
    row("Shift with none", {click(7, shift)}, "7", 1, 0, "7");
    row("Shift up to the highest", {click(5), click(9, ctrl), click(7, shift)}, "7 8 9", 3, 1,
        "5 9 7");
    row("Shift on the highest", {click(5), click(9, ctrl), click(9, shift)}, "9", 3, 0, "5 9 9");
    row("Ctrl with Shift", {click(5), click(9, ctrl | shift)}, "5", 1, 0, "5 9");
    row("the right button", {click(5), click(5, {}, Qt::RightButton)}, "", 2, 0, "5 5");
    row("the middle button", {click(5), click(6, {}, Qt::MiddleButton)}, "5", 1, 0, "5 6");
    row("right of the grid",
        {[](QWidget* widget) { QTest::mouseClick(widget, Qt::LeftButton, {}, QPoint(192, 3)); }},
        "", 0, 0, "");
    row("below the slots", {click(200)}, "", 0, 0, "");
    row("arrows", {click(17), key(Qt::Key_Down), key(Qt::Key_Left), key(Qt::Key_Up)}, "16", 4, 0,
        "17");
    row("Shift with arrows", {click(18), key(Qt::Key_Left, shift), key(Qt::Key_Left, shift)},
        "16 17 18", 3, 2, "18");
    row("ends", {click(18), key(Qt::Key_Home), key(Qt::Key_Left), key(Qt::Key_End)}, "99", 4, 0,
        "18");
    row("Space", {key(Qt::Key_Right, ctrl), key(Qt::Key_Space)}, "1", 1, 0, "1");
    row("Ctrl with Space",
        {click(4), key(Qt::Key_Right, ctrl), key(Qt::Key_Space, ctrl), key(Qt::Key_Left, ctrl),
         key(Qt::Key_Space, ctrl)},
        "5", 3, 0, "4 5");
}

void TestPaletteWidget::select()
{
    QFETCH(QVector<Work>, steps);
    PaletteWidget widget;
    widget.setColorCount(100);
    widget.resize(300, 300);
    QSignalSpy selections(&widget, &PaletteWidget::selectionChanged);
    QSignalSpy several(&widget, &PaletteWidget::multiColorClick);
    QStringList clicks;
    connect(&widget, &PaletteWidget::colorClick, this,
            [&clicks](int color) { clicks.append(QString::number(color)); });
    for (const Work& step : steps) {
        step(&widget);
    }
    QTEST(selected(widget), "selection");
    QTEST(int(selections.size()), "selections");
    QTEST(int(several.size()), "several");
    QTEST(clicks.join(' '), "clicks");
}

void TestPaletteWidget::noDrag_data()
{
    QTest::addColumn<Work>("end");
    QTest::newRow("Escape") << key(Qt::Key_Escape);
    QTest::newRow("leave") << Work([](QWidget* widget) {
        QEvent event(QEvent::Leave);
        QCoreApplication::sendEvent(widget, &event);
    });
    QTest::newRow("outside") << Work([](QWidget* widget) { drop(widget, {500, -3}); });
    QTest::newRow("no source") << Work([](QWidget* widget) {
        send(widget, QEvent::MouseButtonPress, place(9), Qt::RightButton);
        drop(widget, place(9), Qt::RightButton);
    });
    QTest::newRow("fewer slots") << Work(
        [](QWidget* widget) { static_cast<PaletteWidget*>(widget)->setColorCount(4); });
}

void TestPaletteWidget::noDrag()
{
    QFETCH(Work, end);
    qRegisterMetaType<Qt::MouseButton>("Qt::MouseButton");
    PaletteWidget widget;
    widget.palette()->gradient(nullptr, {0, 0, 0, 255}, {255, 255, 255, 255});
    const Colors before = colorsOf(widget);
    drag(&widget, 5, place(40));
    QSignalSpy changed(&widget, &PaletteWidget::changed);
    QSignalSpy clicked(&widget, &PaletteWidget::colorClick);
    end(&widget);
    if (qstrcmp(QTest::currentDataTag(), "outside") != 0) {
        drop(&widget, place(2));
    }
    QCOMPARE(colorsOf(widget), before);
    QCOMPARE(changed.size() + clicked.size(), 0);
    // The next press is one like any other.
    click(3)(&widget);
    QCOMPARE(clicked.size(), 1);
}

/// Whoever takes the drag may delete the grid.
void TestPaletteWidget::goesToSomebodyElse()
{
    auto widget = std::make_unique<PaletteWidget>();
    widget->palette()->gradient(nullptr, {0, 0, 0, 255}, {255, 255, 255, 255});
    const Colors before = colorsOf(*widget);
    QVector<int> taken;
    connect(widget.get(), &PaletteWidget::colorDraggedOut, this,
            [&](int slot) { taken.append(slot); });
    QSignalSpy changed(widget.get(), &PaletteWidget::changed);
    drag(widget.get(), 5, {widget->width() + 3, 5});  // as far as a hand may shake
    QVERIFY(taken.isEmpty());
    drag(widget.get(), 5, {widget->width() + 100, 5});
    drop(widget.get(), place(2));
    QCOMPARE(taken, QVector<int>{5});
    QVERIFY(colorsOf(*widget) == before && changed.isEmpty());
    connect(widget.get(), &PaletteWidget::colorDraggedOut, this, [&] { widget.reset(); });
    drag(widget.get(), 7, {-100, -100});
    QCOMPARE(taken, (QVector<int>{5, 7}));
    QVERIFY(!widget);
}

void TestPaletteWidget::sharpAtAnyScale_data()
{
    QTest::addColumn<double>("scale");
    for (const double scale : {1.0, 1.25, 1.5, 2.0}) {
        QTest::addRow("%g", scale) << scale;
    }
}

/// No colour is mixed at the edges, and each pixel of a cell is hit as its slot.
void TestPaletteWidget::sharpAtAnyScale()
{
    QFETCH(double, scale);
    PaletteWidget widget;
    for (int i = 0; i < 256; ++i) {
        widget.palette()->setColor(static_cast<unsigned char>(i), {quint8(i), 1, 2, 255});
    }
    int clicked = -1;
    connect(&widget, &PaletteWidget::colorClick, this, [&clicked](int color) { clicked = color; });
    for (const int size : {13, 12}) {
        widget.setCellSize(size);
        widget.resize(widget.sizeHint());
        QImage picture(widget.size() * scale, QImage::Format_RGB32);
        picture.setDevicePixelRatio(scale);
        widget.render(&picture);
        const int cell = int(12 * scale);
        for (int y = 1; y < picture.height(); y += 7) {
            for (int x = 0; x < picture.width(); ++x) {
                const QRgb color = picture.pixel(x, y);
                const bool isLine = color == qRgb(255, 255, 255) || color == qRgb(128, 128, 128);
                QVERIFY2(isLine || (color & 0xffff) == 0x0102, "a mixed colour");
                const int slot = y / cell * 16 + x / cell;
                if (size == 13 || (x % cell > 2 && x % cell < cell - 2)) {
                    continue;
                }
                send(&widget, QEvent::MouseButtonPress, QPointF(x, y) / scale, Qt::LeftButton);
                send(&widget, QEvent::MouseButtonRelease, QPointF(x, y) / scale, Qt::LeftButton);
                QCOMPARE(clicked, slot);
                QVERIFY(isLine || qRed(color) == slot);
            }
        }
    }
}

void TestPaletteWidget::shortcutsWait()
{
    PaletteWidget widget;
    const auto takes = [&widget](int key, Qt::KeyboardModifiers modifiers = {}) {
        QKeyEvent event(QEvent::ShortcutOverride, key, modifiers);
        event.ignore();
        QCoreApplication::sendEvent(&widget, &event);
        return event.isAccepted();
    };
    QVERIFY(takes(Qt::Key_Space) && takes(Qt::Key_Up) && takes(Qt::Key_Left, Qt::AltModifier));
    QVERIFY(!takes(Qt::Key_Escape) && !takes(Qt::Key_B) && !takes(Qt::Key_Home, Qt::MetaModifier));
    drag(&widget, 5, place(40));
    QVERIFY(takes(Qt::Key_Escape));
    widget.setColorCount(0);
    QVERIFY(!takes(Qt::Key_Home) && !takes(Qt::Key_Right) && !takes(Qt::Key_Space));
}

QTEST_MAIN(TestPaletteWidget)
#include "tst_palettewidget.moc"
