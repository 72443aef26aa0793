#include "stagefixture.h"

#include "support/gltest.h"
#include "support/monkey.h"
#include "support/randomtext.h"

#include <zorv/animation/timeline/timelinewidget.h>

#include <QWheelEvent>
#include <functional>

namespace {

constexpr quint32 Seed = 20261122;
constexpr int Events = 20000;
constexpr int MostLines = 60;
constexpr int Discard = 1;  // in the question about what is unsaved

const RandomText Text({"animation 1 \"A\"",
                       "animation 2",
                       "frame 0,0 delay 2",
                       "frame 0,1 flip h",
                       "frame 0,0 offset 3,-4 delay 3 loop",
                       "frame 9,9",
                       "frame 0,0 scale 2,-1.5",
                       "frame 0,1 angle 90 delay -1",
                       "body 0,0, 9,9",
                       "body -30,-40, -10,-20",
                       "body 20,-40, 39,-9",
                       "attack -60,-30, -41,-21",
                       "attack 10,-20, 60,-5",
                       "attack 9,9, 0,0",
                       "body 1,2",
                       "",
                       "# note",
                       "frame 0,0 delay 0",
                       "frame 0,0 offset 32767,-32768",
                       "body -32768,-32768, 32767,32767"},
                      QStringLiteral("0123456789-, fx\n"));

const Qt::Key StageKeys[] = {Qt::Key_Left,   Qt::Key_Right,    Qt::Key_Up,    Qt::Key_Down,
                             Qt::Key_Delete, Qt::Key_Plus,     Qt::Key_Minus, Qt::Key_0,
                             Qt::Key_PageUp, Qt::Key_PageDown, Qt::Key_Space, Qt::Key_Control,
                             Qt::Key_Shift,  Qt::Key_A,        Qt::Key_Left,  Qt::Key_Delete};

const Qt::Key TextKeys[] = {Qt::Key_Up,     Qt::Key_Down,      Qt::Key_Left,  Qt::Key_Right,
                            Qt::Key_Delete, Qt::Key_Backspace, Qt::Key_Home,  Qt::Key_End,
                            Qt::Key_Return, Qt::Key_PageUp,    Qt::Key_Escape};

const char* const Actions[] = {"anim_play",
                               "anim_stop",
                               "anim_next_frame",
                               "anim_prev_frame",
                               "anim_box_add_attack",
                               "anim_box_add_collision",
                               "anim_box_del",
                               "stage_capture",
                               "anim_onion_skin",
                               "view_main_cross",
                               "view_secondary_cross",
                               "view_extra_cross",
                               "view_rulers",
                               "view_guide_lines",
                               "view_attack_box",
                               "view_collision_box",
                               "view_center_origin",
                               "anim_duplicate",
                               "anim_delete"};

/// Does something at random to the stage and to its text.
class Monkey : public MonkeyOf<Monkey>
{
public:
    Monkey();

    void tidy();
    QString fault();

private:
    Qt::KeyboardModifiers anyModifiers()
    {
        static const Qt::KeyboardModifiers modifiers[] = {
            Qt::NoModifier, Qt::NoModifier, Qt::NoModifier, Qt::ShiftModifier, Qt::ControlModifier};
        return modifiers[number(5)];
    }
    QPoint anyPlace();
    QTextBlock anyLine()
    {
        return m.document()->findBlockByNumber(number(m.document()->blockCount()));
    }

    void press();
    void move();
    void release();
    void turnTheWheel();
    void keyOnStage();
    void keyInText();
    void type();
    void edit();
    void undoOrRedo();
    void trigger();
    void goSomewhere();
    void scrub();
    void changeSprites();
    void changeSettings();
    void resizeOrClose();
    void wait();

    StageFixture m;
};

}  // namespace

Monkey::Monkey()
    : MonkeyOf(Seed, {{40, &Monkey::press},
                      {60, &Monkey::move},
                      {40, &Monkey::release},
                      {8, &Monkey::turnTheWheel},
                      {25, &Monkey::keyOnStage},
                      {15, &Monkey::keyInText},
                      {15, &Monkey::type},
                      {10, &Monkey::edit},
                      {15, &Monkey::undoOrRedo},
                      {20, &Monkey::trigger},
                      {20, &Monkey::goSomewhere},
                      {10, &Monkey::scrub},
                      {4, &Monkey::changeSprites},
                      {1, &Monkey::changeSettings},
                      {1, &Monkey::resizeOrClose},
                      {10, &Monkey::wait}})
{
}

void Monkey::tidy()
{
    if (m.document()->blockCount() > MostLines || m.document()->blockCount() < 4) {
        m.document()->setPlainText("animation 1\n" + Text.lines(random, 30));
    }
}

/// Mostly on something: near the origin, or on a corner or in the middle of a box.
QPoint Monkey::anyPlace()
{
    const Family::FrameNode* frame = m.editor()->frame();
    const auto type = chance(2) ? Zorv::ContactBoxCode::Attack : Zorv::ContactBoxCode::Collision;
    const Zorv::ContactBoxesCode* boxes = frame ? frame->contactBoxes(type) : nullptr;
    if (boxes && boxes->count() > 0 && !chance(3)) {
        const QRect rect = boxes->at(number(boxes->count()))->rect();
        const QPoint points[] = {rect.topLeft(), rect.bottomRight(), rect.center(), rect.center()};
        const QPoint place = m.at(anyOf(points));
        if (m.widget()->rect().contains(place)) {
            return place;
        }
    }
    return chance(2) ? m.at({number(120) - 60, number(120) - 90})
                     : QPoint(number(m.widget()->width() + 40) - 20,
                              number(m.widget()->height() + 40) - 20);
}

void Monkey::press()
{
    QTest::mousePress(m.widget(), chance(6) ? Qt::RightButton : Qt::LeftButton, anyModifiers(),
                      anyPlace());
}

void Monkey::move()
{
    m.move(anyPlace(), anyModifiers());
}

void Monkey::release()
{
    QTest::mouseRelease(m.widget(), chance(6) ? Qt::RightButton : Qt::LeftButton, anyModifiers(),
                        anyPlace());
}

void Monkey::turnTheWheel()
{
    const QPoint place = anyPlace();
    QWheelEvent event(place, m.widget()->mapToGlobal(place), {}, {0, 120 * (number(7) - 3)},
                      Qt::NoButton, anyModifiers(), Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(m.widget(), &event);
}

void Monkey::keyOnStage()
{
    QTest::keyClick(m.widget(), anyOf(StageKeys), chance(8) ? Qt::ShiftModifier : Qt::NoModifier);
}

void Monkey::keyInText()
{
    QTest::keyClick(m.fixture.edit(), anyOf(TextKeys),
                    chance(6) ? Qt::ShiftModifier : Qt::NoModifier);
}

void Monkey::type()
{
    static const QByteArray characters = "0123456789-, fa";
    QTest::keyClick(m.fixture.edit(), characters.at(number(characters.size())));
}

void Monkey::edit()
{
    Text.edit(random, *m.document());
}

void Monkey::undoOrRedo()
{
    m.trigger(chance(3) ? "redo" : "undo");
}

void Monkey::trigger()
{
    m.trigger(anyOf(Actions));
}

void Monkey::goSomewhere()
{
    if (chance(4)) {
        m.window()->stage()->showAnimation(number(5) - 1);
    } else {
        m.fixture.goTo(anyLine().blockNumber());
    }
}

void Monkey::scrub()
{
    Zorv::TimeLineWidget* line = m.timeLine();
    const QPoint place(number(line->width()), number(line->height()));
    if (chance(2)) {
        line->setCurrentTick(unsigned(number(40)));
    } else {
        QTest::mouseClick(line, chance(5) ? Qt::RightButton : Qt::LeftButton, {}, place);
    }
}

void Monkey::changeSprites()
{
    Family::SpriteCollection* sprites = m.window()->spritePanel()->sprites();
    QImage image(1 + number(40), 1 + number(40), QImage::Format_Indexed8);
    image.setColorTable({0, 0xffff0000, 0xff00ff00});
    image.fill(uint(number(3)));
    const auto id = Family::AssetId{0, quint16(number(2))};
    switch (number(4)) {
    case 0:
        sprites->insertSprite(-1, id, {number(60), number(60)}, image);
        break;
    case 1:
        if (sprites->count() > 0) {
            sprites->removeSprites({number(int(sprites->count()))});
        }
        break;
    default:
        chance(2) ? sprites->undo() : sprites->redo();
    }
}

void Monkey::changeSettings()
{
    const char* const keys[] = {"zoom_mode",      "zoom_center",        "background_type",
                                "crosshair_type", "sprite_over_guides", "contact_over_cross",
                                "onion_effect"};
    m.fixture.host.setOption(QLatin1String(anyOf(keys)), number(4) - 1);
    m.window()->reconfig();
}

void Monkey::resizeOrClose()
{
    if (chance(2)) {
        m.window()->resize(700 + number(500), 500 + number(500));
    } else if (chance(2)) {
        m.trigger("view_stage");
        m.trigger("view_stage");
    } else {
        m.fixture.dialogs.choiceAnswers = {Discard};
        m.trigger("close_text");
        if (!m.document()) {
            QVERIFY(m.window()->openFile(m.game.animations()));
        }
    }
}

void Monkey::wait()
{
    QTest::qWait(chance(20) ? 60 : 1);
}

/// What the stage shows otherwise than the text has it, once nothing is held any more.
QString Monkey::fault()
{
    m.release({-5, -5});
    QTest::keyClick(m.widget(), Qt::Key_Escape);
    m.trigger("anim_stop");
    QCoreApplication::processEvents();
    QString found = m.fault(random);
    for (int i = 0; i < 5 && found.isEmpty(); ++i) {
        m.goTo(anyLine().blockNumber());
        found = m.fault(random);
    }
    return found;
}

/// Window and text survive whatever happens on the stage, and the stage shows what the text has.
class TestStageMonkey : public QObject
{
    Q_OBJECT

private slots:
    void survives();
};

void TestStageMonkey::survives()
{
    Monkey().survive(Events);
}

ZORV_GL_TEST_MAIN(TestStageMonkey)
#include "tst_stagemonkey.moc"
