#include "stagefixture.h"

#include "app/assets/palettegrid.h"
#include "app/assets/spritepanel.h"
#include "family/nodes/animationnode.h"
#include "family/nodes/framenode.h"
#include "support/gltest.h"

#include <zorv/animation/timeline/timelinewidget.h>

#include <QAction>
#include <QCheckBox>
#include <QDockWidget>
#include <QSignalSpy>
#include <QUndoStack>
#include <QWheelEvent>

using Zorv::ContactBoxCode;

namespace {

constexpr int BodyLine = 1;
constexpr int AttackLine = 2;
constexpr int FrameLine = 3;
constexpr int FlippedLine = 5;
constexpr int ScaledLine = 6;
constexpr int LongWait = 20000;

const QPoint SpriteMiddle(-19, -28);  // of the first frame
const QPoint Body(50, -25);
const QPoint Attack(80, -36);
const QPoint Empty(-60, 20);

}  // namespace

/// The stage of the window on a display: what mouse and keys do to the text, what the text does to
/// the stage, and that both live through whatever goes away.
class TestStage : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { m.reset(); }

    void dragsBecomeText_data();
    void dragsBecomeText();
    void boxesAreDrawn_data();
    void boxesAreDrawn();
    void modesTellTheSelection();
    void boxesGo();
    void keysMoveBoxes();
    void colourIsCaptured_data();
    void colourIsCaptured();
    void textLeadsTheStage();
    void jumpsShowTheFirstFrame();
    void scrubbingLeadsTheText();
    void plays();
    void closesWhileItPlays_data();
    void closesWhileItPlays();
    void editsDuringADrag_data();
    void editsDuringADrag();
    void partsAreShownAndHidden_data();
    void partsAreShownAndHidden();
    void onionSkinIsSwitched();
    void settingsAreApplied();
    void zoomsAboutAPlace();
    void wheelZooms();
    void wheelZoomsAboutThePointer();

private:
    QColor colourAt(QPoint model) const { return colourOf(m->at(model)); }
    QColor colourOf(QPoint place) const { return m->widget()->grabFramebuffer().pixelColor(place); }
    void undoesOnce(const QStringList& before) const;

    std::unique_ptr<StageFixture> m;
};

void TestStage::init()
{
    m = std::make_unique<StageFixture>();
    QVERIFY2(m->widget(), "no GL");
    QCOMPARE(m->editor()->frameIndex(), 0);
}

/// One step of undo brings back what was there, one of redo what was done.
void TestStage::undoesOnce(const QStringList& before) const
{
    const QStringList after = m->lines();
    QVERIFY(after != before);
    m->trigger("undo");
    QCOMPARE(m->lines(), before);
    m->trigger("redo");
    QCOMPARE(m->lines(), after);
}

void TestStage::dragsBecomeText_data()
{
    QTest::addColumn<QPoint>("from");
    QTest::addColumn<QPoint>("to");
    QTest::addColumn<int>("line");
    QTest::addColumn<QString>("text");
    const int none = -1;
    QTest::newRow("sprite") << SpriteMiddle << QPoint(-12, -32) << FrameLine
                            << "frame 0,0 offset 12,-14 delay 4";
    QTest::newRow("cross of the sprite")
        << QPoint(5, -10) << QPoint(0, 0) << FrameLine << "frame 0,0 delay 4";
    QTest::newRow("body") << Body << QPoint(53, -20) << BodyLine << "body 43,-35, 62,-6";
    QTest::newRow("attack") << Attack << QPoint(0, 0) << AttackLine << "attack -10,-4, 9,5";
    QTest::newRow("top left") << QPoint(40, -40) << QPoint(42, -38) << BodyLine
                              << "body 42,-38, 59,-11";
    QTest::newRow("top") << QPoint(50, -40) << QPoint(90, -50) << BodyLine << "body 40,-50, 59,-11";
    QTest::newRow("left") << QPoint(40, -25) << QPoint(30, 40) << BodyLine << "body 30,-40, 59,-11";
    QTest::newRow("top right") << QPoint(59, -40) << QPoint(64, -41) << BodyLine
                               << "body 40,-41, 64,-11";
    QTest::newRow("bottom left") << QPoint(40, -11) << QPoint(38, -5) << BodyLine
                                 << "body 38,-40, 59,-5";
    QTest::newRow("bottom") << QPoint(50, -11) << QPoint(90, 4) << BodyLine << "body 40,-40, 59,4";
    QTest::newRow("bottom right") << QPoint(59, -11) << QPoint(63, -5) << BodyLine
                                  << "body 40,-40, 63,-5";
    QTest::newRow("right") << QPoint(59, -25) << QPoint(69, 9) << BodyLine << "body 40,-40, 69,-11";
    QTest::newRow("turned over") << QPoint(40, -25) << QPoint(65, -25) << BodyLine
                                 << "body 59,-40, 65,-11";
    QTest::newRow("nothing") << Empty << QPoint(-30, 30) << none << "";
    QTest::newRow("a box back and forth") << Body << Body << none << "";
}

/// At another zoom and origin than those at the start, too.
void TestStage::dragsBecomeText()
{
    QFETCH(QPoint, from);
    QFETCH(QPoint, to);
    QFETCH(int, line);
    QFETCH(QString, text);
    for (const int zoom : {5, 11}) {
        m->stage()->setZoomLevel(static_cast<unsigned char>(zoom));
        m->stage()->setOrigin({301, 321});
        const QStringList before = m->lines();
        m->click(text.startsWith("body") ? Body : Empty);
        QCOMPARE(m->lines(), before);
        m->drag(from, to);
        QStringList expected = before;
        if (line < 0) {
            QCOMPARE(m->lines(), before);
            continue;
        }
        expected[line] = text;
        QCOMPARE(m->lines(), expected);
        QCOMPARE(m->stage()->selectedContactBoxes().isEmpty(), line == FrameLine);
        // The text cursor stays where it is in the lines of the frame.
        QVERIFY(m->cursorLine() <= FrameLine);
        undoesOnce(before);
        m->trigger("undo");
        QCoreApplication::processEvents();
    }
}

void TestStage::boxesAreDrawn_data()
{
    QTest::addColumn<QByteArray>("action");
    QTest::addColumn<QPoint>("to");
    QTest::addColumn<int>("line");
    QTest::addColumn<QString>("text");
    const QByteArray attack("anim_box_add_attack");
    const QByteArray body("anim_box_add_collision");
    QTest::newRow("attack") << attack << QPoint(120, 30) << 3 << "attack 100,10, 120,30";
    QTest::newRow("body") << body << QPoint(120, 30) << 3 << "body 100,10, 120,30";
    QTest::newRow("to the top left") << body << QPoint(90, 0) << 3 << "body 90,0, 100,10";
    QTest::newRow("a click") << body << QPoint(100, 10) << -1 << "";
}

void TestStage::boxesAreDrawn()
{
    QFETCH(QByteArray, action);
    QFETCH(QPoint, to);
    QFETCH(int, line);
    QFETCH(QString, text);
    const QStringList before = m->lines();
    m->trigger(action.constData());
    QVERIFY(m->fixture.action(action.constData())->isChecked());
    m->drag({100, 10}, to);
    if (line < 0) {
        QCOMPARE(m->lines(), before);
    } else {
        QStringList expected = before;
        expected.insert(line, text);
        QCOMPARE(m->lines(), expected);
    }
    // The right button ends it, and leaves the new box selected.
    QTest::mouseClick(m->widget(), Qt::RightButton, {}, m->at(Empty));
    QVERIFY(!m->fixture.action(action.constData())->isChecked());
    QCOMPARE(m->stage()->selectedContactBoxes().size(), line < 0 ? 0 : 1);
    if (line >= 0) {
        undoesOnce(before);
    }
}

/// However a mode is left, the box that was drawn can be deleted; one that begins lets boxes go.
void TestStage::modesTellTheSelection()
{
    const QAction* remove = m->fixture.action("delete");
    const auto expectEnabled = [remove](bool isEnabled) {
        QCoreApplication::processEvents();
        QCOMPARE(remove->isEnabled(), isEnabled);
    };
    for (const bool byKey : {true, false}) {
        m->trigger("anim_box_add_attack");
        expectEnabled(false);
        m->drag({100, 10}, {120, 30});
        byKey ? QTest::keyClick(m->widget(), Qt::Key_Escape) : m->trigger("anim_box_add_attack");
        expectEnabled(true);
        QTest::keyClick(m->widget(), Qt::Key_Delete);
        expectEnabled(false);
        m->click(Body);
        expectEnabled(true);
    }
}

void TestStage::boxesGo()
{
    const QStringList before = m->lines();
    QVERIFY(!m->fixture.action("delete")->isEnabled());
    m->click(Body);
    m->click(Attack, Qt::ShiftModifier);
    QCOMPARE(m->stage()->selectedContactBoxes().size(), 2);
    QCoreApplication::processEvents();
    QVERIFY(m->fixture.action("delete")->isEnabled());
    m->drag(Body, Body + QPoint(1, 2));
    QStringList expected = before;
    expected[BodyLine] = "body 41,-38, 60,-9";
    QCOMPARE(m->lines(), expected);
    m->trigger("undo");
    QCOMPARE(m->lines(), before);

    m->click(Empty);
    m->click(Body);
    m->click(Attack, Qt::ShiftModifier);
    QTest::keyClick(m->widget(), Qt::Key_Delete);
    expected = before;
    expected.erase(expected.begin() + BodyLine, expected.begin() + AttackLine + 1);
    QCOMPARE(m->lines(), expected);
    undoesOnce(before);
}

void TestStage::keysMoveBoxes()
{
    const QStringList before = m->lines();
    m->click(Attack);
    const struct
    {
        Qt::Key key;
        const char* text;
    } keys[] = {{Qt::Key_Left, "attack 69,-40, 88,-31"},
                {Qt::Key_Up, "attack 69,-41, 88,-32"},
                {Qt::Key_Right, "attack 70,-41, 89,-32"},
                {Qt::Key_Down, "attack 70,-40, 89,-31"}};
    for (const auto& row : keys) {
        QTest::keyClick(m->widget(), row.key);
        QCoreApplication::processEvents();
        QCOMPARE(m->lines().at(AttackLine), QString(row.text));
    }
    QCOMPARE(m->lines(), before);
}

void TestStage::colourIsCaptured_data()
{
    QTest::addColumn<int>("line");
    QTest::addColumn<QPoint>("place");
    QTest::addColumn<int>("column");  // of the picture, -1 beside it
    QTest::newRow("plain") << FrameLine << QPoint(5 - 40 + 13, -30) << 13;
    QTest::newRow("first column") << FrameLine << QPoint(5 - 40, -30) << 0;
    QTest::newRow("last column") << FrameLine << QPoint(5 - 40 + 31, -30) << 31;
    QTest::newRow("mirrored, first column") << FlippedLine << QPoint(38, -20) << 1;
    QTest::newRow("mirrored, last column") << FlippedLine << QPoint(9, -20) << 30;
    QTest::newRow("scaled") << ScaledLine << QPoint(-80 + 2 * 20 + 1, -30) << 20;
    QTest::newRow("beside") << FrameLine << QPoint(5, 5) << -1;
}

void TestStage::colourIsCaptured()
{
    QFETCH(int, line);
    QFETCH(QPoint, place);
    QFETCH(int, column);
    m->goTo(line);
    m->trigger("stage_capture");
    const QStringList before = m->lines();
    const auto* grid = m->window()->spritePanel()->findChild<App::PaletteGrid*>();
    m->click(place);
    QCOMPARE(grid->marked(), column < 0 ? -1 : colourOfColumn(column));
    if (column >= 0) {
        // As it is seen.
        const QRgb colours[] = {0, 0xffe02020, 0xff20c020, 0xff2020e0};
        QCOMPARE(colourAt(place), QColor(colours[grid->marked()]));
    }
    m->drag(place, Empty);
    QCOMPARE(m->lines(), before);
}

/// Cursor, organizer and edits.
void TestStage::textLeadsTheStage()
{
    const int frames[] = {0, 0, 0, 0, 1, 1, 2};
    for (int line = 0; line < 7; ++line) {
        m->goTo(line);
        QCOMPARE(m->editor()->frameIndex(), frames[line]);
        QCOMPARE(m->editor()->currentAnimation()->property("Identifier").toString(), QString("1"));
    }
    m->goTo(9);
    QCOMPARE(m->editor()->currentAnimation()->property("Identifier").toString(), QString("2"));
    m->goTo(BodyLine);
    m->fixture.edit()->setFocus();
    m->fixture.press(Qt::Key_End);
    m->fixture.press(Qt::Key_Backspace);
    m->fixture.type(QStringLiteral("9"));
    QCoreApplication::processEvents();
    QCOMPARE(m->lines().at(BodyLine), QString("body 40,-40, 59,-19"));
    m->click(Body);
    QVERIFY(!m->stage()->selectedContactBoxes().isEmpty());
    m->click(Empty);
    m->click({50, -15});
    QVERIFY(m->stage()->selectedContactBoxes().isEmpty());
}

/// A jump brings its line to the middle of the text by way of lines below it.
void TestStage::jumpsShowTheFirstFrame()
{
    QTextCursor(m->document()).insertText(QString("\n").repeated(80));
    m->goTo(80 + 8);
    QCOMPARE(m->editor()->currentAnimation()->property("Identifier").toString(), QString("2"));
    QCOMPARE(m->editor()->frameIndex(), 0);
}

void TestStage::scrubbingLeadsTheText()
{
    Zorv::TimeLineWidget* line = m->timeLine();
    line->setFocus();
    const struct
    {
        unsigned tick;
        int cursor;
    } rows[] = {{5, FlippedLine}, {9, ScaledLine}, {0, FrameLine}};
    for (const auto& row : rows) {
        line->setCurrentTick(row.tick);
        QCoreApplication::processEvents();
        QCOMPARE(m->cursorLine(), row.cursor);
    }
    m->trigger("anim_next_frame");
    QCOMPARE(m->cursorLine(), FlippedLine);
    QTest::keyClick(m->widget(), Qt::Key_PageUp);
    QTest::keyClick(m->widget(), Qt::Key_PageUp);
    QCOMPARE(m->cursorLine(), ScaledLine);
}

/// Round and round, and once to a frame that stays.
void TestStage::plays()
{
    QSet<int> seen;
    const QObject scope;
    connect(m->editor(), &Zorv::AnimationEditor::shownChanged, &scope,
            [&] { seen.insert(m->editor()->frameIndex()); });
    const QStringList before = m->lines();
    m->trigger("anim_play");
    QVERIFY(m->editor()->isPlaying());
    QTRY_COMPARE_WITH_TIMEOUT(seen.size(), 3, LongWait);
    seen.clear();
    QTRY_COMPARE_WITH_TIMEOUT(seen.size(), 3, LongWait);
    QCOMPARE(m->cursorLine(), 0);
    m->trigger("anim_stop");
    QVERIFY(!m->editor()->isPlaying());
    QCOMPARE(m->editor()->frame()->block().blockNumber(), m->cursorLine());
    m->goTo(9);
    m->widget()->setFocus();
    QTest::keyClick(m->widget(), Qt::Key_Space);
    QVERIFY(m->editor()->isPlaying());
    QTRY_VERIFY_WITH_TIMEOUT(!m->editor()->isPlaying(), LongWait);
    QCOMPARE(m->editor()->frameIndex(), 1);
    QCOMPARE(m->lines(), before);
}

void TestStage::closesWhileItPlays_data()
{
    QTest::addColumn<QByteArray>("action");
    for (const char* action : {"close_text", "close_project", "close_folder", "view_stage"}) {
        QTest::newRow(action) << QByteArray(action);
    }
}

void TestStage::closesWhileItPlays()
{
    QFETCH(QByteArray, action);
    m->press(m->at(SpriteMiddle));
    m->trigger("anim_play");
    m->move(m->at(Body));
    QTRY_VERIFY(m->timeLine()->currentTick() > 0);
    m->trigger(action.constData());
    QVERIFY(!m->editor()->isPlaying());
    if (m->view()->isVisible()) {
        m->move(m->at(Empty));
        m->release(m->at(Empty));
    }
    QTest::qWait(50);
    QVERIFY(!m->editor()->isPlaying());
}

void TestStage::editsDuringADrag_data()
{
    QTest::addColumn<QPoint>("from");
    QTest::addColumn<int>("change");
    const char* const changes[] = {"the frame goes", "the box goes", "all goes", "sprites go"};
    for (int i = 0; i < 4; ++i) {
        QTest::addRow("sprite, %s", changes[i]) << SpriteMiddle << i;
        QTest::addRow("box, %s", changes[i]) << Body << i;
        QTest::addRow("sizer, %s", changes[i]) << QPoint(59, -11) << i;
    }
}

/// What the person holds may go: whatever the rest of the drag does, stage and text agree, and all
/// can be undone.
void TestStage::editsDuringADrag()
{
    QFETCH(QPoint, from);
    QFETCH(int, change);
    const QStringList before = m->lines();
    m->click(Body);
    m->press(m->at(from));
    m->move(m->at(from + QPoint(3, 3)));
    QTextCursor cursor(m->document()->findBlockByNumber(change == 1 ? BodyLine : FrameLine));
    if (change < 2) {
        cursor.select(QTextCursor::BlockUnderCursor);
        cursor.removeSelectedText();
    } else if (change == 2) {
        cursor.select(QTextCursor::Document);
        cursor.removeSelectedText();
    } else {
        m->window()->spritePanel()->sprites()->removeSprites({0, 1});
    }
    m->move(m->at(from + QPoint(6, 6)));
    QTest::qWait(1);
    m->move(m->at(from + QPoint(9, 9)));
    m->release(m->at(from + QPoint(9, 9)));
    QCoreApplication::processEvents();
    QRandomGenerator random(1);
    QCOMPARE(m->fault(random), QString());
    while (m->fixture.action("undo")->isEnabled()) {
        m->trigger("undo");
        QCoreApplication::processEvents();
    }
    QCOMPARE(m->lines(), before);
}

void TestStage::partsAreShownAndHidden_data()
{
    QTest::addColumn<QByteArray>("name");
    for (const char* name :
         {"view_main_cross", "view_secondary_cross", "view_extra_cross", "view_rulers",
          "view_guide_lines", "view_attack_box", "view_collision_box"}) {
        QTest::newRow(name) << QByteArray(name);
    }
}

/// What a switch hides is not on the picture.
void TestStage::partsAreShownAndHidden()
{
    QFETCH(QByteArray, name);
    const QImage before = m->widget()->grabFramebuffer();
    m->trigger(name.constData());
    QVERIFY(m->widget()->grabFramebuffer() != before);
    m->trigger(name.constData());
    QCOMPARE(m->widget()->grabFramebuffer(), before);
}

/// The fields of the onion skin stand in the menu of its button.
void TestStage::onionSkinIsSwitched()
{
    auto* box = m->window()->findChild<QCheckBox*>(QStringLiteral("anim_onion_skin"));
    QVERIFY(box && box->isEnabled());
    const QImage before = m->widget()->grabFramebuffer();
    m->trigger("anim_onion_skin");
    QVERIFY(box->isChecked());
    QVERIFY(m->widget()->grabFramebuffer() != before);
    box->click();
    QVERIFY(!m->fixture.action("anim_onion_skin")->isChecked());
    QCOMPARE(m->widget()->grabFramebuffer(), before);
}

void TestStage::settingsAreApplied()
{
    const auto set = [this](const char* key, const QVariant& value) {
        m->fixture.host.setOption(QLatin1String(key), value);
    };
    set("back_start", QColor(10, 200, 30));
    set("back_end", QColor(10, 200, 30));
    set("attackbox", QColor(1, 2, 3));
    set("box_opacity", 0.0);
    set("sprite_over_guides", true);
    set("zoom_mode", 1);
    set("crosshair_type", 99);
    set("background_type", -5);
    m->window()->reconfig();
    m->stage()->setOrigin({60, 150});
    QCOMPARE(colourAt({30, 5}), QColor(10, 200, 30));
    QCOMPARE(colourAt({70, -36}), QColor(1, 2, 3));
    QCOMPARE(colourAt(Attack), QColor(10, 200, 30));
    QVERIFY(m->stage()->spriteOverGuides());
    QCOMPARE(m->stage()->zoom(), 4.0F);
    // A picture of the person's own, at its place.
    QImage picture(10, 10, QImage::Format_RGB32);
    picture.fill(QColor(200, 0, 200));
    const QString file = m->folder.filePath("ground.png");
    QVERIFY(picture.save(file));
    set("background_type", 2);
    set("background_file", file);
    set("background_x", 20);
    set("background_y", 5);
    m->window()->reconfig();
    QCOMPARE(colourAt({21, 6}), QColor(200, 0, 200));
    QCOMPARE(colourAt({31, 6}), QColor(10, 200, 30));
    QFile::remove(file);
    m->window()->reconfig();
    QCOMPARE(colourAt({21, 6}), QColor(10, 200, 30));
}

/// One of two places stays where it is, by keys as by the wheel.
void TestStage::zoomsAboutAPlace()
{
    const QPoint middle = m->widget()->rect().center();
    for (const int center : {1, 0}) {
        m->fixture.host.setOption("zoom_center", center);
        m->window()->reconfig();
        m->stage()->setOrigin(middle - QPoint(40, 20));
        m->stage()->setZoomLevel(5);
        const QPoint place = center == 1 ? QPoint() : QPoint(20, 10);
        const QPoint before = m->at(place);
        QTest::keyClick(m->widget(), Qt::Key_Plus);
        QVERIFY((m->at(place) - before).manhattanLength() <= 2);
        m->stage()->mouseWheel(-360);
        QVERIFY((m->at(place) - before).manhattanLength() <= 2);
        QVERIFY(m->stage()->zoom() < 2);
    }
}

void TestStage::wheelZooms()
{
    Zorv::GraphicsRenderer* stage = m->stage();
    const auto turn = [this](int delta) {
        const QPoint place = m->widget()->rect().center();
        QWheelEvent event(place, m->widget()->mapToGlobal(place), {}, {0, delta}, Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(m->widget(), &event);
    };
    stage->setZoomLevel(3);
    for (int i = 0; i < 7; ++i) {
        turn(40);
    }
    QCOMPARE(int(stage->zoomLevel()), 5);
    turn(-160);
    QCOMPARE(int(stage->zoomLevel()), 4);
    stage->setZoomLevel(11);  // by keys alone
    turn(120);
    QCOMPARE(int(stage->zoomLevel()), 11);
}

/// Wherever it stands, at every step, and to and fro comes out at the same place.
void TestStage::wheelZoomsAboutThePointer()
{
    App::StageRenderer* stage = m->stage();
    const auto turn = [this](QPoint place, int delta) {
        QWheelEvent event(place, m->widget()->mapToGlobal(place), {}, {0, delta}, Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(m->widget(), &event);
    };
    const auto modelAt = [stage](QPoint place) {
        return QPointF(place - stage->origin()) / double(stage->zoom());
    };
    QRandomGenerator random(20261122);
    for (int run = 0; run < 50; ++run) {
        const QPoint place(random.bounded(m->widget()->width()),
                           random.bounded(m->widget()->height()));
        const int way = random.bounded(-4, 5) * 120;
        const QPoint origin = stage->origin();
        const int level = stage->zoomLevel();
        const QPointF before = modelAt(place);
        turn(place, way);
        const QPointF moved = (modelAt(place) - before) * double(stage->zoom());
        QVERIFY(qAbs(moved.x()) <= 1 && qAbs(moved.y()) <= 1);
        turn(place, (level - stage->zoomLevel()) * 120);
        QCOMPARE(int(stage->zoomLevel()), level);
        QCOMPARE(stage->origin(), origin);
        turn(place, -way);
        stage->setOrigin(m->widget()->rect().center());
    }
}

ZORV_GL_TEST_MAIN(TestStage)
#include "tst_stage.moc"
