#include "picture/fighterscene.h"

#include "picture/brush.h"
#include "picture/framecycle.h"
#include "rules/state.h"

#include <algorithm>

namespace Player {

using Rules::FighterData;
using Rules::FighterState;
using Rules::Frame;

namespace {

constexpr int ShadowAlpha = 110;
constexpr double ShadowHeight = 0.16;
constexpr int BareSparkTicks = 10;
constexpr QRgb BareSparks[] = {0xffffffff, 0xffffe080, 0xffff9040};

QPointF placeOf(const Camera& camera, const FighterState& state, int floor, bool isOnFloor)
{
    const double one = Rules::One;
    return camera.at(Rules::pixelOf(state.x), floor + (isOnFloor ? 0 : state.y / one));
}

const char* nameOf(FighterScene::Spark spark)
{
    static constexpr const char* names[] = {"spark-light", "spark-heavy", "spark-guard"};
    return names[int(spark)];
}

}  // namespace

const Frame* shownFrame(const FighterData& data, const FighterState& state)
{
    return state.animation < 0 ? nullptr
                               : &data.animations.at(state.animation).frames.at(state.frame);
}

FighterScene::FighterScene(const FighterData& data, const FighterLook& look, QRgb shadow,
                           int costume)
    : m_data(data), m_look(look), m_shadow(look.shadow != 0 ? look.shadow : shadow),
      m_costume(costume)
{
    m_pictures.open(look.sprites);
    const int stance = data.animationOf(Family::AnimationRole::Stance);
    if (stance >= 0) {
        // Costumes replace the palette of the stance.
        const auto& animation = data.animations.at(stance);
        const Family::FrameData& first = animation.frames.at(animation.first).data;
        m_pictures.setDressed(first.group, first.number);
    }
    dye();
}

void FighterScene::dye()
{
    m_pictures.clearDyes();
    Dye plain;
    plain.costume = m_look.costumes.value(m_costume);
    plain.tint = m_look.tint;
    m_pictures.addDye(plain);
    Dye shadow;
    shadow.flat = (m_shadow & 0xffffff) | uint(ShadowAlpha) << 24;
    m_pictures.addDye(shadow);
}

void FighterScene::wear(int costume)
{
    m_costume = costume % qMax(m_look.costumes.size(), 1);
    dye();
}

void FighterScene::draw(Brush* brush, const FighterState& state, int floor)
{
    const Frame* frame = shownFrame(m_data, state);
    if (!frame) {
        return;
    }
    Showing showing{m_look.scaleX, m_look.scaleY, state.facing};
    brush->draw(frame->data, m_pictures.find(frame->data.group, frame->data.number, Plain),
                placeOf(brush->camera(), state, floor, false), showing);
}

/// Draws the picture squashed flat, on the floor below the fighter.
void FighterScene::drawShadow(Brush* brush, const FighterState& state, int floor)
{
    const Frame* frame = shownFrame(m_data, state);
    if (!frame) {
        return;
    }
    Showing showing{m_look.scaleX, -m_look.scaleY * ShadowHeight, state.facing};
    Family::FrameData data = frame->data;
    data.angle = 0;
    brush->draw(data, m_pictures.find(data.group, data.number, Shadow),
                placeOf(brush->camera(), state, floor, true), showing);
}

bool FighterScene::drawSpark(Brush* brush, Spark spark, int age, QPoint place, int facing)
{
    const QLatin1String name(nameOf(spark));
    const auto found =
        std::find_if(m_data.animations.cbegin(), m_data.animations.cend(),
                     [name](const Rules::Animation& each) { return each.identifier == name; });
    if (found == m_data.animations.cend()) {
        drawBareSpark(brush, spark, age, place);
        return age < BareSparkTicks;
    }
    if (!isInFirstPass(*found, age)) {
        return false;
    }
    const Frame* frame = frameAt(*found, age);
    brush->draw(frame->data, m_pictures.find(frame->data.group, frame->data.number, Plain),
                brush->camera().at(place.x(), place.y()), Showing{1, 1, facing});
    return true;
}

/// A character without spark sprites shows dots that fly apart, in its colours.
void FighterScene::drawBareSpark(Brush* brush, Spark spark, int age, QPoint place)
{
    static constexpr int ways[][2] = {{4, 0},  {3, 3},   {0, 4},  {-3, 3},
                                      {-4, 0}, {-3, -3}, {0, -4}, {3, -3}};
    if (age >= BareSparkTicks) {
        return;
    }
    const int speed = spark == Spark::Heavy ? 2 : 1;
    const int size = qMax(4 - age / 3, 1);
    for (int i = 0; i < 8; ++i) {
        const QPointF at = brush->camera().at(place.x() + ways[i][0] * age * speed / 2,
                                              place.y() + ways[i][1] * age * speed / 2);
        const QRgb color = m_look.sparks.isEmpty() ? BareSparks[i % 3]
                                                   : m_look.sparks.at(i % m_look.sparks.size());
        brush->fill(QRect(at.toPoint(), QSize(size, size)), color);
    }
}

}  // namespace Player
