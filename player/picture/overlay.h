#pragma once

#include <QFlags>

namespace Rules {
struct Game;
struct State;
}  // namespace Rules

namespace Player {

class Brush;

/// Debug drawings on top of the picture, for character authors.
enum class Overlay { Boxes = 1, Axes = 2, Push = 4 };
Q_DECLARE_FLAGS(Overlays, Overlay)
Q_DECLARE_OPERATORS_FOR_FLAGS(Overlays)

/// Draws contact boxes, axes and push boxes of both fighters as the rules use them.
void drawOverlays(Brush* brush, const Rules::Game& game, const Rules::State& state,
                  Overlays overlays);

}  // namespace Player
