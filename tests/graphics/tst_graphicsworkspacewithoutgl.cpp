#include "graphics/graphicwork/graphicsworkspace.h"

#include "animation/timeline/timelinewidget.h"
#include "graphics/glcontext.h"
#include "graphics/stage/graphicsrenderer.h"
#include "support/testinterface.h"

#include <QAction>
#include <QLabel>
#include <QOpenGLWidget>
#include <QSignalSpy>
#include <QtTest>

using namespace Zorv;

/// On a display without GL, as the offscreen one is: a text stands in place of the stage, and all
/// else works.
class TestGraphicsWorkspaceWithoutGl : public QObject
{
    Q_OBJECT

private slots:
    void textStandsThere();
};

void TestGraphicsWorkspaceWithoutGl::textStandsThere()
{
    if (isContextUsable()) {
        QSKIP("GL works here");
    }
    TestInterface host;
    host.options["zoom_level"] = 7;
    GraphicsRenderer stage;
    GraphicsWorkspace workspace;
    QSignalSpy made(&workspace, &GraphicsWorkspace::renderWidgetMade);
    workspace.setUnusableText(QStringLiteral("no GL"));
    workspace.activate();
    workspace.setRenderer(&stage);
    workspace.widget()->resize(400, 300);
    workspace.widget()->show();
    const auto* text = workspace.widget()->findChild<QLabel*>("stage_message");
    QVERIFY(text && text->isVisible());
    QCOMPARE(text->text(), QString("no GL"));
    QVERIFY(!workspace.renderWidget());
    QVERIFY(!workspace.widget()->findChild<QOpenGLWidget*>());
    QCOMPARE(made.size(), 0);
    workspace.setNotice(QStringLiteral("no frame"));
    QVERIFY(!text->isVisible());
    workspace.setNotice({});
    QVERIFY(text->isVisible());

    QCOMPARE(int(stage.zoomLevel()), 7);
    host.actions.value("view_rulers")->trigger();
    QCOMPARE(host.options.value("show_rulers"), QVariant(true));
    workspace.timeLine()->setCurrentTick(3);
    QCOMPARE(workspace.timeLine()->currentTick(), 3U);
    workspace.deactivate();
    QVERIFY(!host.options.contains("origin_x"));
}

QTEST_MAIN(TestGraphicsWorkspaceWithoutGl)
#include "tst_graphicsworkspacewithoutgl.moc"
