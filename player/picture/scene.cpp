#include "picture/scene.h"

#include "picture/brush.h"
#include "rules/state.h"

#include <algorithm>

namespace Player {

using Rules::Event;
using Rules::State;

namespace {

constexpr QRgb Ground = 0xff000000;
constexpr int MostSparks = 64;
constexpr int HeavyStun = 20;

}  // namespace

Scene::Scene(const Rules::Game& game, const FighterLook (&fighters)[2], const StageLook& stage)
    : m_game(game), m_stage(stage, game.stage.floor)
{
    const bool areTwins = game.fighters[0].mainFile == game.fighters[1].mainFile;
    for (int i = 0; i < 2; ++i) {
        const int costume = i == 1 && areTwins && fighters[i].costumes.size() > 1;
        m_fighters[i] =
            std::make_unique<FighterScene>(game.fighters[i], fighters[i], stage.shadow, costume);
    }
}

Scene::~Scene() = default;

QStringList Scene::notes() const
{
    QStringList notes = m_stage.notes();
    for (int i = 0; i < 2; ++i) {
        const QStringList own = m_fighters[i]->notes();
        for (const QString& note : own) {
            notes.append(m_game.fighters[i].name + QLatin1String(": ") + note);
        }
    }
    notes.removeDuplicates();
    return notes;
}

void Scene::see(const State& state)
{
    const auto isLater = [&state](const Spark& spark) { return spark.tick >= state.tick; };
    m_sparks.erase(std::remove_if(m_sparks.begin(), m_sparks.end(), isLater), m_sparks.end());
    for (int i = 0; i < state.eventCount && m_sparks.size() < MostSparks; ++i) {
        const Event& event = state.events[i];
        if (event.kind != Event::Hit && event.kind != Event::Guarded) {
            continue;
        }
        const Rules::Hit& hit = m_game.fighters[event.fighter].moves.at(event.move).hit;
        const auto kind = event.kind == Event::Guarded ? FighterScene::Spark::Guarded
                          : hit.stun >= HeavyStun      ? FighterScene::Spark::Heavy
                                                       : FighterScene::Spark::Light;
        m_sparks.append({state.tick, event.fighter, state.fighters[event.fighter].facing, kind,
                         QPoint(event.x, event.y + m_game.stage.floor)});
    }
}

const QImage& Scene::draw(const State& state, Overlays overlays)
{
    const Camera camera = cameraOf(m_stage.look(), m_game, state);
    if (m_canvas.size() != camera.size) {
        m_canvas = QImage(camera.size, QImage::Format_ARGB32);
    }
    m_canvas.fill(Ground);
    Brush brush(&m_canvas, camera);
    const int floor = m_game.stage.floor;
    m_stage.draw(&brush, StageScene::Behind, state.tick);
    for (int i = 0; i < 2; ++i) {
        m_fighters[i]->drawShadow(&brush, state.fighters[i], floor);
    }
    // The attacker is drawn in front.
    const int above = state.fighters[0].action == Rules::Action::Move ? 0 : 1;
    m_fighters[1 - above]->draw(&brush, state.fighters[1 - above], floor);
    m_fighters[above]->draw(&brush, state.fighters[above], floor);
    drawSparks(&brush, state.tick);
    m_stage.draw(&brush, StageScene::InFront, state.tick);
    drawOverlays(&brush, m_game, state, overlays);
    return m_canvas;
}

void Scene::drawSparks(Brush* brush, int tick)
{
    for (int i = 0; i < m_sparks.size();) {
        const Spark& spark = m_sparks.at(i);
        const bool isThere = spark.tick <= tick &&
                             m_fighters[spark.fighter]->drawSpark(
                                 brush, spark.kind, tick - spark.tick, spark.place, spark.facing);
        isThere ? void(++i) : m_sparks.remove(i);
    }
}

}  // namespace Player
