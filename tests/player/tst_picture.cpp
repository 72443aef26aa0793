// What is drawn of a match, without a window: the same to both sides, where the rules say, and in
// spite of what is missing.

#include "operations/hostinterface.h"
#include "picture/brush.h"
#include "picture/framecycle.h"
#include "picture/loadedmatch.h"
#include "picture/pictures.h"
#include "picture/scene.h"
#include "rules/tick.h"
#include "support/testtable.h"

#include <QTemporaryDir>
#include <QtTest>

#include <climits>

using namespace Player;
using Rules::One;

class TestPicture : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void framesAreThoseOfTheRules();
    void bothSidesAreMirrored();
    void cameraStaysInside_data();
    void cameraStaysInside();
    void mixtures_data();
    void mixtures();
    void strangeLayers_data();
    void strangeLayers();
    void whatIsMissingIsTold();

private:
    Operations::HostInterface m_host;
    LoadedMatch m_match;
};

void TestPicture::initTestCase()
{
    Operations::startHost(&m_host);
    QString error;
    QVERIFY(m_match.load({ZORV_SAMPLES "/arena", {"maren", "maren"}, {}, false}, &error));
    QCOMPARE(m_match.notes, QStringList());
}

/// Every animation of a character is played by the rules as a pose, far beyond its first pass.
void TestPicture::framesAreThoseOfTheRules()
{
    Rules::Game game = m_match.game;
    for (int i = 0; i < game.fighters[0].animations.size(); ++i) {
        game.hasIntro = true;
        game.fighters[0].shown[int(Family::AnimationRole::Intro)] = i;
        Rules::State state = Rules::firstState(game);
        const Rules::Animation& animation = game.fighters[0].animations.at(i);
        for (int t = 0; state.phase == Rules::Phase::Intro && t < 290; ++t) {
            const Rules::Frame* frame = frameAt(animation, t);
            QCOMPARE(int(frame - animation.frames.constData()), state.fighters[0].frame);
            Rules::tick(game, {}, &state);
        }
    }
}

void TestPicture::bothSidesAreMirrored()
{
    Scene scene(m_match.game, m_match.looks, StageLook());
    for (int i = 1; i < m_match.looks[1].costumes.size(); ++i) {
        scene.fighter(1).wearNext();
    }
    Rules::State state = Rules::firstState(m_match.game);
    for (int t = 0; t < 40; ++t) {
        Rules::tick(m_match.game, {}, &state);
        const QImage picture = scene.draw(state).copy();
        QCOMPARE(picture.mirrored(true, false), picture);
    }
    QCOMPARE(scene.notes(), QStringList());
}

void TestPicture::cameraStaysInside_data()
{
    columns<int, int, int>("first", "second", "height");
    row("middle", -90, 90, 0);
    row("left", -620, -600, 0);
    row("right", 600, 620, 0);
    row("apart", -620, 180, 0);
    row("high", -90, 90, 2000);
}

/// Both are in the picture, and it shows nothing beyond what the stage lets the camera see.
void TestPicture::cameraStaysInside()
{
    const auto [first, second, height] = fetched<int, int, int>();
    Rules::State state = Rules::firstState(m_match.game);
    state.fighters[0].x = first * One;
    state.fighters[0].y = -height * One;
    state.fighters[1].x = second * One;
    const StageLook& look = m_match.stage;
    const Camera camera = cameraOf(look, m_match.game, state);
    for (const auto& fighter : state.fighters) {
        const double x = camera.at(fighter.x / double(One), 0).x();
        QVERIFY(x >= 0 && x <= camera.size.width());
    }
    const double half = look.screen.width() / 2.0;
    QVERIFY(camera.at(look.camera.left() - half, 0).x() <= 0.5);
    QVERIFY(camera.at(look.camera.right() + half, 0).x() >= camera.size.width() - 0.5);
    QCOMPARE(camera.at(0, look.camera.top() + look.screen.height() / 2.0).y(),
             double(camera.size.height()));
}

void TestPicture::mixtures_data()
{
    columns<int, QRgb, QRgb>("mixture", "colour", "expected");
    row("over", int(Family::Mixture::Over), qRgba(200, 0, 100, 255), qRgb(200, 0, 100));
    row("add", int(Family::Mixture::Add), qRgba(200, 10, 100, 255), qRgb(255, 110, 200));
    row("add half", int(Family::Mixture::Add), qRgba(100, 10, 50, 128), qRgb(150, 105, 125));
    row("subtract", int(Family::Mixture::Subtract), qRgba(200, 10, 50, 255), qRgb(0, 90, 50));
    row("multiply", int(Family::Mixture::Multiply), qRgba(255, 0, 51, 255), qRgb(100, 0, 20));
    row("clear", int(Family::Mixture::Multiply), qRgba(0, 0, 0, 0), qRgb(100, 100, 100));
}

void TestPicture::mixtures()
{
    const auto [mixture, colour, expected] = fetched<int, QRgb, QRgb>();
    QImage canvas(4, 4, QImage::Format_ARGB32);
    canvas.fill(qRgb(100, 100, 100));
    QImage dot(1, 1, QImage::Format_Indexed8);
    dot.setColorTable({colour});
    dot.fill(0);
    Camera camera;
    Showing showing;
    showing.mixture = Family::Mixture(mixture);
    Brush(&canvas, camera).draw({}, {dot, {}}, {1, 2}, showing);
    QCOMPARE(QColor(canvas.pixel(1, 2)), QColor(expected));
    QCOMPARE(canvas.pixel(2, 2), qRgb(100, 100, 100));
}

void TestPicture::strangeLayers_data()
{
    columns<QPoint, QPoint, double>("offset", "gap", "velocity");
    row("far away", QPoint(INT_MAX, INT_MIN), QPoint(INT_MAX, INT_MAX), 64.0);
    row("one over the other", QPoint(), QPoint(), 0.0);
    row("back to front", QPoint(INT_MIN, INT_MAX), QPoint(INT_MIN, INT_MIN), -64.0);
}

/// A picture of each comes soon, whatever their numbers are.
void TestPicture::strangeLayers()
{
    const auto [offset, gap, velocity] = fetched<QPoint, QPoint, double>();
    StageLook look = m_match.stage;
    Pictures pictures;
    pictures.open(look.sprites);
    const QSize size = pictures.sizeOf(10, 0);
    QVERIFY(!size.isEmpty());
    for (LayerLook& layer : look.layers) {
        layer.animation = -1;
        layer.group = 10;
        layer.number = 0;
        layer.offset = offset;
        layer.velocityX = velocity;
        layer.gap = gap.isNull() ? QPoint(1 - size.width(), 1 - size.height()) : gap;
        layer.alongX = layer.alongY = true;
    }
    Scene scene(m_match.game, m_match.looks, look);
    Rules::State state = Rules::firstState(m_match.game);
    state.tick = INT_MAX;
    QVERIFY(!scene.draw(state).isNull());
}

void TestPicture::whatIsMissingIsTold()
{
    QTemporaryDir folder;
    QVERIFY(QDir(folder.path()).mkpath("characters/a"));
    QFile file(folder.filePath("characters/a/a.character"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("[files]\nsprites = \"none.sprites\"\ncode = \"../../../x.code\"\n[constants]\n"
               "life = full\nanimation 10\nframe 1,1 scale 64,-64 angle 3 loop\n");
    file.close();
    LoadedMatch match;
    QString error;
    QVERIFY(match.load({folder.path(), {}, {}, false}, &error));
    QCOMPARE(match.notes.size(), 2);
    QVERIFY(match.notes.first().startsWith("a.character:5: "));
    Scene scene(match.game, match.looks, match.stage);
    QVERIFY(!scene.draw(Rules::firstState(match.game)).isNull());
    QCOMPARE(scene.notes().size(), 1);
    QVERIFY(!match.load({folder.path(), {"b"}, {}, false}, &error));
    QVERIFY(error.contains("'b'"));
}

QTEST_GUILESS_MAIN(TestPicture)
#include "tst_picture.moc"
