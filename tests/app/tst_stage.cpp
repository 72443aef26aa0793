#include "app/palettes/familypaletteeditor.h"
#include "app/palettes/palettecommands.h"
#include "stagefixture.h"

#include <zorv/editors/palette/palettewidget.h>

#include "app/assets/spritepanel.h"
#include "family/nodes/animationnode.h"
#include "family/nodes/framenode.h"
#include "support/gltest.h"
#include "support/testtable.h"

#include <zorv/animation/timeline/timelinewidget.h>

#include <QAction>
#include <QRandomGenerator>
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
    void modesTellTheSelection();
    void keysMoveBoxes();
    void colourIsCaptured_data();
    void colourIsCaptured();
    void textLeadsTheStage();
    void jumpsShowTheFirstFrame();
    void plays();
    void zoomsAboutAPlace();
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
    columns<QPoint, QPoint, int, QString>("from", "to", "line", "text");
    const int none = -1;
    row("sprite", SpriteMiddle, QPoint(-12, -32), FrameLine, "frame 0,0 offset 12,-14 delay 4");
    row("cross of the sprite", QPoint(5, -10), QPoint(0, 0), FrameLine, "frame 0,0 delay 4");
    row("body", Body, QPoint(53, -20), BodyLine, "body 43,-35, 62,-6");
    row("attack", Attack, QPoint(0, 0), AttackLine, "attack -10,-4, 9,5");
    row("top left", QPoint(40, -40), QPoint(42, -38), BodyLine, "body 42,-38, 59,-11");
    row("top", QPoint(50, -40), QPoint(90, -50), BodyLine, "body 40,-50, 59,-11");
    row("left", QPoint(40, -25), QPoint(30, 40), BodyLine, "body 30,-40, 59,-11");
    row("top right", QPoint(59, -40), QPoint(64, -41), BodyLine, "body 40,-41, 64,-11");
    row("bottom left", QPoint(40, -11), QPoint(38, -5), BodyLine, "body 38,-40, 59,-5");
    row("bottom", QPoint(50, -11), QPoint(90, 4), BodyLine, "body 40,-40, 59,4");
    row("bottom right", QPoint(59, -11), QPoint(63, -5), BodyLine, "body 40,-40, 63,-5");
    row("right", QPoint(59, -25), QPoint(69, 9), BodyLine, "body 40,-40, 69,-11");
    row("turned over", QPoint(40, -25), QPoint(65, -25), BodyLine, "body 59,-40, 65,-11");
    row("nothing", Empty, QPoint(-30, 30), none, "");
    row("a box back and forth", Body, Body, none, "");
}

/// At another zoom and origin than those at the start, too.
void TestStage::dragsBecomeText()
{
    const auto [from, to, line, text] = fetched<QPoint, QPoint, int, QString>();
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
    // `column`: of the picture, -1 beside it
    columns<int, QPoint, int>("line", "place", "column");
    row("plain", FrameLine, QPoint(5 - 40 + 13, -30), 13);
    row("first column", FrameLine, QPoint(5 - 40, -30), 0);
    row("last column", FrameLine, QPoint(5 - 40 + 31, -30), 31);
    row("mirrored, first column", FlippedLine, QPoint(38, -20), 1);
    row("mirrored, last column", FlippedLine, QPoint(9, -20), 30);
    row("scaled", ScaledLine, QPoint(-80 + 2 * 20 + 1, -30), 20);
    row("beside", FrameLine, QPoint(5, 5), -1);
}

void TestStage::colourIsCaptured()
{
    const auto [line, place, column] = fetched<int, QPoint, int>();
    m->goTo(line);
    m->trigger("stage_capture");
    const QStringList before = m->lines();
    Zorv::PaletteEditor* palettes = m->window()->palettes()->editor();
    palettes->view()->clearSelection();
    m->click(place);
    const int colour = palettes->view()->firstSelection();
    QCOMPARE(colour, column < 0 ? 0 : colourOfColumn(column));
    if (column >= 0) {
        QVERIFY(palettes->currentPalette());
        // As it is seen.
        const QRgb colours[] = {0, 0xffe02020, 0xff20c020, 0xff2020e0};
        QCOMPARE(colourAt(place), QColor(colours[colour]));
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
