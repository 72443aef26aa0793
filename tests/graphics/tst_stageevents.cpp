#include "graphics/stage/graphicsrenderer.h"

#include "graphics/renderwidget.h"
#include "support/gltest.h"
#include "support/stagedata.h"

#include <QCursor>
#include <QSignalSpy>
#include <QtTest>

using namespace Zorv;

/// Events of mouse and keys as they come from the window system.
class TestStageEvents : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { widget.reset(); }
    void cursorsFollow();
    void detachedInTheMiddle();

private:
    void move(QPoint pos)
    {
        QMouseEvent event(QEvent::MouseMove, pos, widget->mapToGlobal(pos), Qt::NoButton,
                          QGuiApplication::mouseButtons(), Qt::NoModifier);
        QApplication::sendEvent(widget.get(), &event);
    }
    void press(QPoint pos) { QTest::mousePress(widget.get(), Qt::LeftButton, {}, pos); }
    void release(QPoint pos) { QTest::mouseRelease(widget.get(), Qt::LeftButton, {}, pos); }
    Qt::CursorShape cursor() const { return widget->cursor().shape(); }

    StageData::Boxes boxes{ContactBoxCode::Attack};
    std::unique_ptr<GraphicsRenderer> stage;
    std::unique_ptr<RenderWidget> widget;
};

void TestStageEvents::init()
{
    boxes = StageData::Boxes(ContactBoxCode::Attack);
    boxes.add(QRect(0, 0, 40, 40));
    stage = std::make_unique<GraphicsRenderer>();
    stage->setVisibility(false, false, false, true, true, true, true);
    stage->setPriority(false, false);
    stage->setZoomTable(0);
    stage->zoomActual();
    stage->setOrigin({100, 100});
    stage->setGuideLines({100, 100});
    stage->setContactBoxes(ContactBoxCode::Attack, &boxes);
    connect(stage.get(), &GraphicsRenderer::itemReleased, stage.get(),
            &GraphicsRenderer::updateSelectedBoxes);
    widget = std::make_unique<RenderWidget>();
    widget->setFocusPolicy(Qt::StrongFocus);
    widget->resize(300, 300);
    widget->setRenderer(stage.get());
    widget->show();
    QVERIFY(QTest::qWaitForWindowExposed(widget.get()));
    QApplication::setActiveWindow(widget.get());
}

void TestStageEvents::cursorsFollow()
{
    QSignalSpy places(stage.get(), &GraphicsRenderer::cursorChanged);
    move({110, 110});
    QCOMPARE(cursor(), Qt::SizeAllCursor);
    move({200, 250});
    QCOMPARE(cursor(), Qt::SizeHorCursor);
    QCOMPARE(places.last().first().toPoint(), QPoint(100, 150));
    move({250, 250});
    QCOMPARE(cursor(), Qt::OpenHandCursor);
    press({250, 250});
    move({251, 250});
    QCOMPARE(cursor(), Qt::ClosedHandCursor);
    release({251, 250});
    QCOMPARE(cursor(), Qt::OpenHandCursor);
    QCursor::setPos(widget->mapToGlobal({110, 110}));
    QTRY_COMPARE(cursor(), Qt::SizeAllCursor);
    QTest::keyPress(widget.get(), Qt::Key_Control);
    QCOMPARE(cursor(), Qt::OpenHandCursor);
    QTest::keyRelease(widget.get(), Qt::Key_Control);
    QCOMPARE(cursor(), Qt::SizeAllCursor);
}

void TestStageEvents::detachedInTheMiddle()
{
    press({110, 110});
    move({115, 112});
    widget->setRenderer(nullptr);
    release({115, 112});
    move({130, 130});
    stage->mouseMoved({120, 120}, Qt::NoModifier);
    stage->mouseReleased({120, 120}, Qt::LeftButton, Qt::NoModifier);
    stage->keyReleased(Qt::Key_Control, Qt::NoModifier);
    QCOMPARE(boxes.at(0)->rect(), QRect(5, 2, 40, 40));
    widget->setRenderer(stage.get());
    press({120, 120});
    widget.reset();
    stage->mouseMoved({125, 120}, Qt::NoModifier);
    stage->mouseReleased({125, 120}, Qt::LeftButton, Qt::NoModifier);
    QCOMPARE(boxes.at(0)->rect(), QRect(10, 2, 40, 40));
}

ZORV_GL_TEST_MAIN(TestStageEvents)
#include "tst_stageevents.moc"
