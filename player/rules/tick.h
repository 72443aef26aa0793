#pragma once

#include "rules/state.h"

namespace Rules {

/// The state before the first tick: at the intros, or at the start of the first round.
State firstState(const Game& game);

/// Advances by one tick. The result depends only on game, state and inputs.
void tick(const Game& game, const Inputs& inputs, State* state);

/// Converts screen directions to those of a motion, or back.
inline quint8 mirrored(quint8 signs, int facing)
{
    if (facing > 0) {
        return signs;
    }
    const quint8 sides = signs & (Inputs::Right | Inputs::Left);
    const quint8 swapped = quint8((sides & Inputs::Right) << 1 | (sides & Inputs::Left) >> 1);
    return quint8((signs & ~(Inputs::Right | Inputs::Left)) | swapped);
}

/// True if a fighter is free to start a move, on the floor or in the air.
bool isFree(const FighterState& fighter);

/// Starts a move in the tick of the state, regardless of anything else, to examine a single move.
/// It hits in that tick if it can.
void forceMove(const Game& game, int fighter, int move, State* state);

}  // namespace Rules
