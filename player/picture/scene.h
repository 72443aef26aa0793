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
/// Draws only what is in the state, except sparks: they stay visible for some ticks after the tick
/// passed to `see()`. Main thread only.
class Scene
{
public:
    /// The game must outlive the scene and must not change.
    Scene(const Rules::Game& game, const FighterLook (&fighters)[2], const StageLook& stage);
    ~Scene();

    /// Records the one-time events of a tick. Forgets sparks of later ticks, because time was
    /// turned back.
    void see(const Rules::State& state);

    /// An opaque picture of the camera's size, valid until the next call.
    const QImage& draw(const Rules::State& state, Overlays overlays = {});

    FighterScene& fighter(int index) { return *m_fighters[index]; }

    /// One line for the user for everything that could not be shown so far.
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
