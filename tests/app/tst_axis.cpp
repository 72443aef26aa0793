#include "paintingfixture.h"

#include "app/assets/axisdialog.h"
#include "support/testtable.h"

#include <zorv/image/canvas/imageundostack.h>

#include <QApplication>
#include <QComboBox>
#include <QSpinBox>
#include <QTimer>

/// The axis of sprites: dragged on the canvas, and set for several of them.
class TestAxis : public PaintingTest
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { m.reset(); }

    void isDraggedInOneStep();
    void leavesRoomToPaint();
    void dragEndsWithWhatItBeganOn_data();
    void dragEndsWithWhatItBeganOn();
    void followsArrows();
    void neighboursFollow();
    void isSetForSeveral_data();
    void isSetForSeveral();
    void takesTheCanvasIn();
    void givesUpBesideTheCanvas();
    void readsBehindTheDialog();

private:
    Zorv::ImageUndoStack* steps() const { return canvas()->undoStack(); }
    QPoint place(QPoint axis) const
    {
        return editor()->renderer()->zoomedRect().topLeft() + axis * canvas()->zoomLevel();
    }
    void move(QPoint to) const
    {
        QMouseEvent event(QEvent::MouseMove, to, widget()->mapToGlobal(to), Qt::NoButton,
                          Qt::LeftButton, {});
        QCoreApplication::sendEvent(widget(), &event);
    }
    void drag(const QVector<QPoint>& way, QPoint grabbed = {},
              Qt::KeyboardModifiers keys = {}) const
    {
        const QPoint from = place(canvas()->axis()) + grabbed;
        QTest::mousePress(widget(), Qt::LeftButton, keys, from);
        for (const QPoint& to : way) {
            move(place(to) + grabbed);
        }
        QTest::mouseRelease(widget(), Qt::LeftButton, keys,
                            way.isEmpty() ? from : place(way.last()) + grabbed);
        QCoreApplication::processEvents();
    }
    bool isUntouched() const { return differences(layer(), picture(0)).isEmpty(); }

    /// Sets the axes of all sprites in the dialog, by keys; `inside` comes while it is open.
    void setAll(int base, QPoint offset, const std::function<void()>& inside = {}) const
    {
        m->window->spritePanel()->list()->selectAll();
        QCoreApplication::processEvents();
        QTimer::singleShot(0, this, [&] {
            QWidget* dialog = QApplication::activeModalWidget();
            QVERIFY(dialog);
            dialog->findChild<QComboBox*>()->setCurrentIndex(base);
            const QList<QSpinBox*> boxes = dialog->findChildren<QSpinBox*>();
            boxes[0]->setValue(offset.x());
            boxes[1]->setValue(offset.y());
            if (inside) {
                inside();
            }
            QTest::keyClick(dialog, Qt::Key_Return);
        });
        m->action("sprite_axis")->trigger();
    }
    QVector<QPoint> axes() const
    {
        QVector<QPoint> all;
        for (int i = 0; i < int(sprites()->count()); ++i) {
            all.append(sprites()->sprite(i)->axis());
        }
        return all;
    }
};

void TestAxis::init()
{
    begin();
    m->edit()->setPlainText(QStringLiteral("animation 1\nframe 0,0\nframe 0,1\n"));
    m->goTo(1);
    sprites()->sprite(1)->setImage(picture(1).copy(0, 0, 7, 4));
    openFirst();
    trigger("paint_axis");
}

void TestAxis::isDraggedInOneStep()
{
    drag({{3, 4}, {0, 0}, {-5, 20}}, {2, -3});
    QCOMPARE(canvas()->axis(), QPoint(-5, 20));
    drag({{2, 2}, {1, 9}});
    QCOMPARE(steps()->count(), 2);
    QVERIFY(isUntouched() && editor()->isCanvasModified());
    trigger("spr_saveimg");
    QCOMPARE(axes().first(), QPoint(1, 9));
    trigger("undo");
    QCOMPARE(canvas()->axis(), QPoint(-5, 20));
    trigger("undo");
    QCOMPARE(canvas()->axis(), QPoint(8, 11));
    // What ends where it began is no step, and neither is a click.
    drag({{2, 2}, {8, 11}});
    drag({}, {3, 3});
    QVERIFY(!steps()->canUndo() && canvas()->axis() == QPoint(8, 11));
}

void TestAxis::leavesRoomToPaint()
{
    editor()->colors()->setForeground(3);
    drag({{3, 3}}, {-5, -5});
    QVERIFY(!isUntouched() && canvas()->axis() == QPoint(8, 11));
    trigger("undo");
    const QPoint before = canvas()->position();
    drag({{3, 3}}, {}, Qt::ControlModifier);
    QVERIFY(canvas()->position() != before && canvas()->axis() == QPoint(8, 11));
    trigger("paint_axis");
    drag({{3, 3}});
    QVERIFY(!isUntouched() && canvas()->axis() == QPoint(8, 11));
}

void TestAxis::dragEndsWithWhatItBeganOn_data()
{
    columns<bool>("isNextSprite");
    row("undo", false);
    row("next", true);
}

void TestAxis::dragEndsWithWhatItBeganOn()
{
    QFETCH(const bool, isNextSprite);
    QTest::mousePress(widget(), Qt::LeftButton, {}, place({8, 11}));
    move(place({2, 2}));
    if (isNextSprite) {
        trigger("spr_saveimg");
        QTest::keyClick(widget(), Qt::Key_PageDown, Qt::AltModifier);
        QCOMPARE(editor()->spriteIndex(), 1);
    } else {
        QTest::keyClick(widget(), Qt::Key_Z, Qt::ControlModifier);
    }
    QCOMPARE(canvas()->axis(), QPoint(8, 11));
    move(place({5, 5}));
    QTest::mouseRelease(widget(), Qt::LeftButton, {}, place({5, 5}));
    QVERIFY(canvas()->axis() == QPoint(8, 11) && !steps()->canUndo());
}

void TestAxis::followsArrows()
{
    for (const Qt::Key key : {Qt::Key_Left, Qt::Key_Left, Qt::Key_Down}) {
        QTest::keyClick(widget(), key, Qt::ControlModifier);
    }
    QCOMPARE(canvas()->axis(), QPoint(6, 12));
    QCOMPARE(steps()->count(), 1);
    trigger("undo");
    QCOMPARE(canvas()->axis(), QPoint(8, 11));
}

/// The frame behind goes with the axis, also when its own axis changes in the file.
void TestAxis::neighboursFollow()
{
    sprites()->sprite(1)->setImage(picture(1));
    trigger("spr_select_all");
    editor()->clearSelected();
    const auto isRed = [this](QPoint pixel) {
        QCoreApplication::processEvents();
        auto* shown = static_cast<Zorv::RenderWidget*>(widget());
        const QColor color = shown->grabFramebuffer().pixelColor(at(pixel) + QPoint(1, 1));
        return color.red() > color.green() && color.red() > color.blue();
    };
    trigger("paint_shine");
    QVERIFY(isRed({1, 0}) && !isRed({4, 0}));
    drag({{9, 9}, {11, 11}});
    QVERIFY(!isRed({1, 0}) && isRed({4, 0}));
    sprites()->sprite(1)->setAxis({11, 11});
    QVERIFY(isRed({1, 0}) && !isRed({4, 0}));
}

void TestAxis::isSetForSeveral_data()
{
    using Operations::AxisBase;
    using Points = QVector<QPoint>;
    columns<int, QPoint, Points>("base", "offset", "expected");
    row("feet", int(AxisBase::Bottom), QPoint(), Points{{8, 11}, {3, 3}});
    row("number", int(AxisBase::TopLeft), QPoint(32, -96), Points{{32, -96}, {32, -96}});
    row("relative", int(AxisBase::Current), QPoint(0, -2), Points{{8, 9}, {8, 9}});
    row("too far", int(AxisBase::Current), QPoint(32760, 0), Points{{8, 11}, {8, 11}});
}

void TestAxis::isSetForSeveral()
{
    const auto [base, offset, expected] = fetched<int, QPoint, QVector<QPoint>>();
    const QVector<QPoint> before = axes();
    setAll(base, offset);
    QCOMPARE(axes(), expected);
    QCOMPARE(canvas()->axis(), expected.first());
    QCOMPARE(m->dialogs.count(), expected == before ? 1 : 0);
    if (expected != before) {
        sprites()->undo();
    }
    QVERIFY(axes() == before && canvas()->axis() == before.first());
}

/// Else the canvas would put its old axis back when it is saved.
void TestAxis::takesTheCanvasIn()
{
    const QVector<QPoint> before = axes();
    drag({{2, 2}});
    canvas()->flip(true, false);
    const QImage flipped = layer();
    setAll(int(Operations::AxisBase::Current), {1, 0});
    QCOMPARE(axes(), QVector<QPoint>({{15, 2}, {9, 11}}));
    QVERIFY(differences(sprites()->sprite(0)->image(), flipped).isEmpty());
    QVERIFY(!editor()->isCanvasModified() && canvas()->axis() == QPoint(15, 2));
    sprites()->undo();
    QVERIFY(axes() == before);
    QVERIFY(differences(sprites()->sprite(0)->image(), picture(0)).isEmpty());
}

/// The canvas is in the file though the axes are too far away; one that is too large changes none.
void TestAxis::givesUpBesideTheCanvas()
{
    const QVector<QPoint> before = axes();
    canvas()->flip(true, false);
    setAll(int(Operations::AxisBase::Current), {32760, 0});
    QCOMPARE(m->dialogs.count("error"), 1);
    QCOMPARE(sprites()->undoTitle(), QStringLiteral("Save image changes"));
    sprites()->undo();
    QVERIFY(canvas()->setSize({Family::LargestSprite + 1, 12}, {}, true));
    setAll(int(Operations::AxisBase::TopLeft), {});
    QTRY_COMPARE(m->dialogs.count("warning"), 1);
    QCOMPARE(axes(), before);
}

void TestAxis::readsBehindTheDialog()
{
    setAll(int(Operations::AxisBase::TopLeft), {}, [this] { sprites()->removeSprites({0}); });
    QCOMPARE(axes(), QVector<QPoint>({{8, 11}}));
}

QTEST_MAIN(TestAxis)
#include "tst_axis.moc"
