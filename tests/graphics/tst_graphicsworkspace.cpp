#include "graphics/graphicwork/graphicsworkspace.h"

#include "animation/timeline/timelinewidget.h"
#include "graphics/graphicwork/exaxisdlg.h"
#include "graphics/renderwidget.h"
#include "graphics/stage/graphicsrenderer.h"
#include "graphics/stage/graphicsrenderer_p.h"
#include "support/gltest.h"
#include "support/testinterface.h"
#include "support/testproject.h"
#include "text/zorvtranslator.h"

#include <QAction>
#include <QLabel>
#include <QPainter>
#include <QSignalSpy>
#include <QSpinBox>
#include <QtTest>

using namespace Zorv;

namespace {

/// A project that tells the screen of its game.
class ScreenProject : public TestProject
{
public:
    using TestProject::TestProject;

    QSize gameSize() const override { return size; }
    QPointF scale() const override { return factor; }

    QSize size{1280, 720};
    QPointF factor{1, 1};
};

/// A renderer that is no stage: it counts what it hears.
class OtherRenderer : public GraphicsRendererBase
{
public:
    void render(QPainter&) override {}
    void addZoom() override { heard += "+"; }
    void subZoom() override { heard += "-"; }
    void zoomActual() override { heard += "0"; }
    void centralize() override { heard += "c"; }

    QString heard;
};

struct ToolRow
{
    const char* name;
    unsigned textId;
    const char* key;  // null for what is not checkable
};

const ToolRow tools[] = {
    {"view_center_origin", 2, nullptr},         {"view_main_cross", 3, "show_cross0"},
    {"view_secondary_cross", 4, "show_cross1"}, {"view_extra_cross", 5, "show_cross2"},
    {"view_rulers", 6, "show_rulers"},          {"view_guide_lines", 7, "show_guides"},
    {"view_attack_box", 8, "show_attack_box"},  {"view_collision_box", 9, "show_collision_box"},
};

}  // namespace

/// The stage's place in a window, its tools, and what of it is kept.
class TestGraphicsWorkspace : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void toolsShowAndAreStored();
    void crossesCanBeDisabled();
    void originAndZoomAreKept();
    void firstOriginIsInTheMiddle();
    void settingsComeToTheStage();
    void numbersByHandAreBounded();
    void backgroundFollowsTheProject();
    void extraCrossHasFields();
    void otherRenderersAreLeftAlone();
    void stageIsMadeWhenItIsSeen();

private:
    void restart();
    void show();
    bool isVisible(int tool) const;
    QString visible() const;
    QAction* action(const char* name) const { return host->actions.value(name); }
    GraphicsRendererPrivate& scene() const { return GraphicsRendererPrivate::of(*stage); }
    ExAxisDlg* dialog() const { return host->window->findChild<ExAxisDlg*>(); }

    std::unique_ptr<TestInterface> host;
    std::unique_ptr<QWidget> window;
    std::unique_ptr<GraphicsRenderer> stage;
    std::unique_ptr<GraphicsWorkspace> workspace;
};

void TestGraphicsWorkspace::init()
{
    host = std::make_unique<TestInterface>();
    window = std::make_unique<QWidget>();
    host->window = window.get();
    stage = std::make_unique<GraphicsRenderer>();
    GraphicsRendererPrivate::m_origin = QPoint(3, 4);
    workspace = std::make_unique<GraphicsWorkspace>();
}

void TestGraphicsWorkspace::cleanup()
{
    workspace.reset();
    stage.reset();
    window.reset();
    host.reset();
}

/// The next start of the program.
void TestGraphicsWorkspace::restart()
{
    workspace.reset();
    stage = std::make_unique<GraphicsRenderer>();
    GraphicsRendererPrivate::m_origin = QPoint(3, 4);
    workspace = std::make_unique<GraphicsWorkspace>();
}

void TestGraphicsWorkspace::show()
{
    workspace->widget()->resize(400, 330);
    workspace->widget()->show();
    QVERIFY(QTest::qWaitForWindowExposed(workspace->widget()));
}

/// What the stage shows, by the number of the tool.
bool TestGraphicsWorkspace::isVisible(int tool) const
{
    const GraphicsRendererPrivate& d = scene();
    const bool shown[] = {false,
                          d.crosses[0].visible,
                          d.crosses[1].visible,
                          d.crosses[2].visible,
                          d.rulersVisible,
                          d.guidesVisible,
                          d.contactBoxes[0].visible,
                          d.contactBoxes[1].visible};
    return shown[tool];
}

QString TestGraphicsWorkspace::visible() const
{
    QString names;
    for (int tool = 0; tool < int(std::size(tools)); ++tool) {
        names += isVisible(tool) ? QStringLiteral("%1 ").arg(tool) : QString();
    }
    return names;
}

// Each of them by itself, and stored when it changes.
void TestGraphicsWorkspace::toolsShowAndAreStored()
{
    workspace->activate();
    workspace->setRenderer(stage.get());
    for (int tool = 1; tool < int(std::size(tools)); ++tool) {
        const QString before = visible();
        action(tools[tool].name)->trigger();
        const bool isOn = action(tools[tool].name)->isChecked();
        QCOMPARE(isOn, tool != 1);
        QCOMPARE(isVisible(tool), isOn);
        QVERIFY(visible() != before);
        QCOMPARE(host->options.value(tools[tool].key), QVariant(isOn));
    }
    restart();
    workspace->activate();
    workspace->setRenderer(stage.get());
    QCOMPARE(visible(), QString("2 3 4 5 6 7 "));
    action("view_rulers")->setChecked(false);
    QCOMPARE(host->options.value("show_rulers"), QVariant(false));
    QVERIFY(!isVisible(4));
}

void TestGraphicsWorkspace::crossesCanBeDisabled()
{
    workspace->setRenderer(stage.get());
    action("view_secondary_cross")->setChecked(true);
    for (int cross = 0; cross < 3; ++cross) {
        const bool isOn = isVisible(cross + 1);
        workspace->enableCross(GraphicsWorkspace::Cross(cross), false);
        QVERIFY(!isVisible(cross + 1));
        QVERIFY(!action(tools[cross + 1].name)->isEnabled());
        workspace->enableCross(GraphicsWorkspace::Cross(cross), true);
        QCOMPARE(isVisible(cross + 1), isOn);
    }
    QVERIFY(!host->options.contains("show_cross0"));
}

void TestGraphicsWorkspace::originAndZoomAreKept()
{
    const auto stored = [this](const char* key) { return host->options.value(key).toInt(); };
    host->options = {{"origin_x", 40}, {"origin_y", -50}, {"zoom_level", 7}};
    workspace->activate();
    workspace->setRenderer(stage.get());
    QCOMPARE(stage->origin(), QPoint(40, -50));
    QCOMPARE(int(stage->zoomLevel()), 7);
    // By a drag, and by the wheel.
    stage->setVisibility(false, false, false, false, false, false, false);
    stage->mousePressed({100, 100}, Qt::LeftButton, {});
    stage->mouseMoved({110, 99}, {});
    stage->mouseMoved({130, 101}, {});
    stage->mouseReleased({130, 101}, Qt::LeftButton, {});
    stage->mouseWheel(-240);
    QTRY_COMPARE(QPoint(stored("origin_x"), stored("origin_y")), QPoint(70, -49));
    QCOMPARE(stored("zoom_level"), 5);
    // At once, where it may be read again.
    workspace->zoomIn();
    workspace->reconfig();
    QCOMPARE(int(stage->zoomLevel()), 6);
    stage->setOrigin({1, 2});
    workspace->zoomOut();
    workspace->deactivate();
    QVERIFY(!workspace->renderer());
    QCOMPARE(QPoint(stored("origin_x"), stored("origin_y")), QPoint(1, 2));
    QCOMPARE(stored("zoom_level"), 5);
    restart();
    workspace->activate();
    workspace->setRenderer(stage.get());
    QCOMPARE(stage->origin(), QPoint(1, 2));
    QCOMPARE(int(stage->zoomLevel()), 5);
    workspace->zoomActual();
    QCOMPARE(stage->zoom(), 1.0F);
}

void TestGraphicsWorkspace::firstOriginIsInTheMiddle()
{
    // Nothing is kept of a stage that was never seen.
    workspace->activate();
    workspace->setRenderer(stage.get());
    workspace->deactivate();
    QVERIFY(!host->options.contains("origin_x"));

    workspace->activate();
    workspace->setRenderer(stage.get());
    show();
    const QSize size = workspace->renderWidget()->size();
    const QPoint middle(size.width() / 2, size.height() / 2);
    QCOMPARE(stage->origin(), middle);
    QCOMPARE(host->options.value("origin_x").toInt(), middle.x());
    QCOMPARE(host->options.value("origin_y").toInt(), middle.y());
    workspace->widget()->resize(500, 430);
    QCOMPARE(stage->origin(), middle);
}

void TestGraphicsWorkspace::settingsComeToTheStage()
{
    QTemporaryDir folder;
    const QString picture = folder.filePath("p.png");
    QImage(7, 5, QImage::Format_RGB32).save(picture);
    host->options = {{"back_start", QColor(1, 2, 3)},
                     {"back_end", QColor(4, 5, 6)},
                     {"background_type", 2},
                     {"background_x", 11},
                     {"background_y", -12},
                     {"background_file", picture},
                     {"attackbox", QColor(7, 8, 9)},
                     {"collisionbox", QColor(10, 11, 12)},
                     {"box_opacity", 0.25},
                     {"crosshair_type", 2},
                     {"crosshair_main", picture},
                     {"crosshair_secondary", picture},
                     {"crosshair_extra", picture},
                     {"sprite_over_guides", true},
                     {"contact_over_cross", true},
                     {"zoom_mode", 1},
                     {"zoom_center", 0},
                     {"zoom_level", 9}};
    workspace->setRenderer(stage.get());
    workspace->reconfig();
    const Background& ground = GraphicsRendererPrivate::background();
    QCOMPARE(ground.start, QColor(1, 2, 3));
    QCOMPARE(ground.end, QColor(4, 5, 6));
    QCOMPARE(ground.position, QPoint(11, -12));
    QCOMPARE(ground.image.size(), QSize(7, 5));
    QCOMPARE(ContactBoxes::color[0], QColor(7, 8, 9));
    QCOMPARE(ContactBoxes::color[1], QColor(10, 11, 12));
    QCOMPARE(ContactBoxes::opacity, 0.25F);
    for (const auto cross : {Cross::Main, Cross::Secondary, Cross::Extra}) {
        QCOMPARE(GraphicsRendererPrivate::crossImage(cross).size(), QSize(7, 5));
    }
    QVERIFY(stage->spriteOverGuides() && stage->contactOverCross());
    QCOMPARE(Zoom::mode, 0);
    QCOMPARE(stage->zoom(), 8.0F);
    // What a host does not know stays, but for pictures.
    host->options = {};
    workspace->reconfig();
    QCOMPARE(ground.start, QColor(1, 2, 3));
    QCOMPARE(ContactBoxes::opacity, 0.25F);
    QCOMPARE(stage->zoom(), 8.0F);
    QVERIFY(ground.image.isNull());
    QVERIFY(!stage->spriteOverGuides() && !stage->contactOverCross());
}

void TestGraphicsWorkspace::numbersByHandAreBounded()
{
    const struct
    {
        int zoom;
        int level;
    } rows[] = {{-1, 0}, {12, 11}, {254, 11}, {255, 0}, {256, 11}, {1 << 30, 11}};
    for (const auto& row : rows) {
        host->options["zoom_level"] = row.zoom;
        workspace->setRenderer(stage.get());
        QCOMPARE(int(stage->zoomLevel()), row.level);
        workspace->setRenderer(nullptr);
    }
    const int most = std::numeric_limits<int>::max();
    const int least = std::numeric_limits<int>::min();
    host->options = {{"origin_x", most},     {"origin_y", least},   {"background_type", least},
                     {"zoom_mode", most},    {"zoom_center", most}, {"crosshair_type", most},
                     {"background_x", most}, {"box_opacity", 1e30}};
    workspace->reconfig();
    workspace->activate();
    QVERIFY(qAbs(stage->origin().x()) <= 100000 && qAbs(stage->origin().y()) <= 100000);
    QCOMPARE(int(Zoom::table), 1);
    QCOMPARE(Zoom::mode, 1);
    QCOMPARE(ContactBoxes::opacity, 1.0F);
    Zoom::table = 0;
    host->options["background_type"] = 0;
    workspace->reconfig();
}

void TestGraphicsWorkspace::backgroundFollowsTheProject()
{
    QTemporaryDir folder;
    TestParent parent(folder.path());
    ScreenProject project(&parent, new TestDocument);
    const QPoint& position = GraphicsRendererPrivate::background().position;
    host->options = {{"background_type", 1}, {"background_x", 5}, {"background_y", 6}};
    const auto attached = [&](Project* front, QSize size, QPointF scale) {
        project.size = size;
        project.factor = scale;
        host->frontProject = front;
        workspace->setRenderer(stage.get());
        return position;
    };
    QCOMPARE(attached(&project, {1280, 720}, {1, 1}), QPoint(-638, -622));
    QCOMPARE(attached(&project, {1280, 720}, {0, 0}), QPoint(-638, -622));
    QCOMPARE(attached(&project, {1280, 720}, {2.01, 0}), QPoint(-638, -622));
    QCOMPARE(attached(nullptr, {1280, 720}, {2.01, 2}), QPoint(-638, -622));
    QCOMPARE(attached(&project, {1280, 720}, {2.01, 2}), QPoint(-212, -206));
    QCOMPARE(attached(&project, {1280, 720}, {0.5, 0.5}), QPoint(-958, -935));
    project.factor = {1, 1};
    workspace->fitBackground();
    QCOMPARE(position, QPoint(-638, -622));
    host->options["background_type"] = 0;
    QCOMPARE(attached(&project, {1280, 720}, {1, 1}), QPoint(-638, -622));
    project.release();
}

void TestGraphicsWorkspace::extraCrossHasFields()
{
    QSignalSpy changes(workspace.get(), &GraphicsWorkspace::extraAxisChanged);
    workspace->activate();
    action("view_extra_cross")->setChecked(true);
    QVERIFY(!dialog());
    stage->setItemPosition(GraphicsRenderer::ExtraCross, {21, -22}, 0);
    workspace->setRenderer(stage.get());
    QVERIFY(dialog() && dialog()->isVisible());
    QCOMPARE(dialog()->windowTitle(), QString("Extra cross"));
    auto* x = dialog()->findChild<QSpinBox*>("xVal");
    auto* y = dialog()->findChild<QSpinBox*>("yVal");
    QCOMPARE(QPoint(x->value(), y->value()), QPoint(21, -22));
    workspace->setExtraAxis({5, 6});
    QCOMPARE(QPoint(x->value(), y->value()), QPoint(5, 6));
    QCOMPARE(changes.size(), 0);
    QTest::keyClick(x, Qt::Key_Up);
    QTest::keyClick(y, Qt::Key_Down);
    QCOMPARE(changes.size(), 2);
    QCOMPARE(changes.last().first().toPoint(), QPoint(6, 5));
    QCOMPARE(stage->itemPosition(GraphicsRenderer::ExtraCross, 0), QPoint(6, 5));

    // It goes with the renderer, and comes back to its place.
    dialog()->move(123, 45);
    workspace->setRenderer(nullptr);
    QVERIFY(!dialog()->isVisible());
    dialog()->move(1, 1);
    workspace->setRenderer(stage.get());
    QVERIFY(dialog()->isVisible());
    QCOMPARE(dialog()->pos(), QPoint(123, 45));
    for (const bool byEscape : {true, false}) {
        QVERIFY(action("view_extra_cross")->isChecked() && isVisible(3));
        byEscape ? QTest::keyClick(dialog(), Qt::Key_Escape) : void(dialog()->close());
        QVERIFY(!dialog()->isVisible());
        QVERIFY(!action("view_extra_cross")->isChecked());
        QVERIFY(!isVisible(3));
        QCOMPARE(host->options.value("show_cross2"), QVariant(false));
        action("view_extra_cross")->trigger();
        QVERIFY(dialog()->isVisible());
    }
    action("view_extra_cross")->trigger();
    QVERIFY(!dialog()->isVisible());
}

void TestGraphicsWorkspace::otherRenderersAreLeftAlone()
{
    host->options["zoom_level"] = 2;
    OtherRenderer other;
    workspace->activate();
    show();
    workspace->setRenderer(stage.get());
    workspace->setRenderer(&other);
    QCOMPARE(workspace->renderWidget()->renderer(), &other);
    QCOMPARE(workspace->renderer(), &other);
    host->options["zoom_level"] = 4;
    workspace->enableCross(GraphicsWorkspace::MainCross, false);
    action("view_extra_cross")->trigger();
    workspace->reconfig();
    workspace->update();
    QCOMPARE(other.heard, QString());
    workspace->zoomIn();
    workspace->zoomOut();
    workspace->zoomActual();
    action("view_center_origin")->trigger();
    QCOMPARE(other.heard, QString("+-0c"));
    workspace->deactivate();
    QVERIFY(!workspace->renderWidget()->renderer());
    QCOMPARE(host->options.value("zoom_level").toInt(), 4);
    // One that dies while it is shown.
    workspace->setRenderer(stage.get());
    stage.reset();
    workspace->zoomIn();
    QVERIFY(!workspace->renderer());
}

void TestGraphicsWorkspace::stageIsMadeWhenItIsSeen()
{
    QSignalSpy made(workspace.get(), &GraphicsWorkspace::renderWidgetMade);
    const auto* notice = workspace->widget()->findChild<QLabel*>("stage_notice");
    workspace->setUnusableText(QStringLiteral("no GL"));
    workspace->setRenderer(stage.get());
    workspace->setNotice(QStringLiteral("no frame"));
    show();
    QVERIFY(notice->isVisible());
    QCOMPARE(notice->text(), QString("no frame"));
    QVERIFY(!workspace->renderWidget());
    QVERIFY(workspace->timeLine()->isVisible());
    workspace->setNotice({});
    QCOMPARE(made.size(), 1);
    QVERIFY(workspace->renderWidget()->isVisible());
    QCOMPARE(workspace->renderWidget()->renderer(), stage.get());
    workspace->setNotice(QStringLiteral("gone"));
    QVERIFY(!workspace->renderWidget()->isVisible());
    workspace->setNotice({});
    QCOMPARE(made.size(), 1);
    // The stage is worth more than the strip.
    workspace->widget()->resize(400, 60);
    QVERIFY(!workspace->timeLine()->isVisible());
    QVERIFY(workspace->renderWidget()->height() >= 45);
    workspace->widget()->resize(400, 330);
    QVERIFY(workspace->timeLine()->isVisible());
    QSignalSpy clicks(workspace.get(), &GraphicsWorkspace::statusBarClicked);
    workspace->statusClicked();
    QCOMPARE(clicks.size(), 1);
}

ZORV_GL_TEST_MAIN(TestGraphicsWorkspace)
#include "tst_graphicsworkspace.moc"
