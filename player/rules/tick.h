#pragma once

#include "rules/state.h"

namespace Rules {

/// The state in front of the first tick: with the intros, or where the first round begins.
State firstState(const Game& game);

/// Goes on by a tick. Nothing else than game, state and inputs decides what comes out.
void tick(const Game& game, const Inputs& inputs, State* state);

/// The signs of a fighter as a motion has them, from those of the screen; and the other way round.
inline quint8 mirrored(quint8 signs, int facing)
{
    if (facing > 0) {
        return signs;
    }
    const quint8 sides = signs & (Inputs::Right | Inputs::Left);
    const quint8 swapped = quint8((sides & Inputs::Right) << 1 | (sides & Inputs::Left) >> 1);
    return quint8((signs & ~(Inputs::Right | Inputs::Left)) | swapped);
}

/// True if a fighter could start a move on the floor, or would in the air.
bool isFree(const FighterState& fighter);

/// Starts a move in the tick that a state is of, whatever else goes on: for those who look at one
/// move. It hits in that tick if it can.
void forceMove(const Game& game, int fighter, int move, State* state);

}  // namespace Rules
