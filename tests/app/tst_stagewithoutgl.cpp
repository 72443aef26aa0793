#include "windowfixture.h"

#include "app/stage/familyanimationeditor.h"
#include "app/stage/stagecommands.h"

#include <zorv/animation/timeline/timelinewidget.h>
#include <zorv/graphics/graphicwork/graphicsworkspace.h>

#include <QAction>
#include <QLabel>
#include <QOpenGLWidget>

/// The window on a display without GL, as the offscreen one is: a message stands in place of the
/// stage, and the rest works.
class TestStageWithoutGl : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void messageStandsThere();
    void timeLineWorks();
    void textWorks();

private:
    App::StageCommands* stage() const { return m_fixture->window->stage(); }

    TemporaryGame m_game;
    std::unique_ptr<WindowFixture> m_fixture;
};

void TestStageWithoutGl::initTestCase()
{
    m_game.write("characters/ryn/basic.anim", "animation 1 \"One\"\r\n"
                                              "body 0,0, 9,9\r\n"
                                              "frame 0,0 delay 3\r\n"
                                              "frame 0,1 delay -1\r\n");
    m_fixture = std::make_unique<WindowFixture>();
    m_fixture->open(m_game, m_game.ryn(), m_game.animations());
    m_fixture->goTo(1);
    QCoreApplication::processEvents();
    if (stage()->workspace()->renderWidget()) {
        QSKIP("GL works here");
    }
}

void TestStageWithoutGl::messageStandsThere()
{
    QVERIFY(!m_fixture->window->findChild<QOpenGLWidget*>());
    const auto* message = m_fixture->window->findChild<QLabel*>("stage_message");
    QVERIFY(message && message->isVisible());
    QVERIFY(message->text().contains("OpenGL"));
    for (const char* name : {"stage_capture"}) {
        QVERIFY2(!m_fixture->action(name)->isEnabled(), name);
    }
}

void TestStageWithoutGl::timeLineWorks()
{
    stage()->workspace()->timeLine()->setFocus();
    stage()->workspace()->timeLine()->setCurrentTick(3);
    QCoreApplication::processEvents();
    QCOMPARE(m_fixture->edit()->textCursor().blockNumber(), 3);
    m_fixture->goTo(2);
    m_fixture->action("anim_play")->trigger();
    QVERIFY(stage()->editor()->isPlaying());
    QTRY_VERIFY(!stage()->editor()->isPlaying());
    QCOMPARE(m_fixture->edit()->textCursor().blockNumber(), 3);
}

void TestStageWithoutGl::textWorks()
{
    m_fixture->goTo(1);
    m_fixture->edit()->setFocus();
    m_fixture->press(Qt::Key_End);
    m_fixture->type(QStringLiteral("9"));
    const QString line = m_fixture->document()->findBlockByNumber(1).text();
    QCOMPARE(line, QString("body 0,0, 9,99"));
    m_fixture->window->reconfig();
    m_fixture->action("undo")->trigger();
    QCOMPARE(m_fixture->document()->findBlockByNumber(1).text(), QString("body 0,0, 9,9"));
}

QTEST_MAIN(TestStageWithoutGl)
#include "tst_stagewithoutgl.moc"
