#pragma once

#include "picture/fighterscene.h"
#include "picture/overlay.h"
#include "picture/stagescene.h"

#include <memory>

namespace Rules {
struct Game;
struct State;
}  // namespace Rules

namespace Player {

/// Draws a match: the stage with its layers, both fighters, sparks.
///
/// Nothing but the state is drawn, but for sparks, which are seen for some ticks after the one that
/// `see()` was told of. Main thread only.
class Scene
{
public:
    /// The game outlives the scene, and stays as it is.
    Scene(const Rules::Game& game, const FighterLook (&fighters)[2], const StageLook& stage);
    ~Scene();

    /// Takes over what is seen once of a tick. Sparks of later ticks are gone: time was turned
    /// back.
    void see(const Rules::State& state);

    /// Has the size of the camera, and is opaque. Good until the next one is drawn.
    const QImage& draw(const Rules::State& state, Overlays overlays = {});

    FighterScene& fighter(int index) { return *m_fighters[index]; }

    /// What could not be shown so far, a line each for the person.
    QStringList notes() const;

private:
    struct Spark
    {
        int tick;
        int fighter;
        int facing;
        FighterScene::Spark kind;
        QPoint place;
    };

    void drawSparks(Brush* brush, int tick);

    const Rules::Game& m_game;
    StageScene m_stage;
    std::unique_ptr<FighterScene> m_fighters[2];
    QVector<Spark> m_sparks;
    QImage m_canvas;
};

}  // namespace Player
