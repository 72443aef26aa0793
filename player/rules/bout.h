#pragma once

#include "rules/tick.h"

namespace Rules {

/// The context of one tick, with the actions that several parts of it share.
struct Bout
{
    const Game& game;
    State& state;
    bool stands[2] = {false, false};        ///< in hit stop during this tick
    bool isThreatened[2] = {false, false};  ///< by a move of the opponent that can still hit

    Bout(const Game& theGame, State& theState) : game(theGame), state(theState) {}

    FighterState& fighter(int index) { return state.fighters[index]; }
    const FighterState& fighter(int index) const { return state.fighters[index]; }
    const FighterData& data(int index) const { return game.fighters[index]; }

    /// The inputs held now, with forward where the fighter looks.
    quint8 signs(int index) const;

    void show(int index, int animation);
    void showRole(int index, Family::AnimationRole role);

    /// Shows a role. If the character has the animation of `first`, that one is shown before.
    void showAfter(int index, Family::AnimationRole first, Family::AnimationRole then);

    /// Changes the action only, not the animation.
    void enter(int index, Action action);
    void stand(int index);
    void forgetCommands(int index);
    void startMove(int index, int move);
    void tell(Event::Kind kind, int index, int move, qint32 x, qint32 y);
};

/// Records the inputs and counts the commands that they complete.
void takeInputs(Bout& bout, const Inputs& inputs);

/// Advances animations, stuns and waits of a fighter.
void goOn(Bout& bout, int index);

/// Records who is near an attack, before anyone decides, so that both fighters decide on the same
/// information.
void seeThreats(Bout& bout);

/// Decides what a fighter does next.
void decide(Bout& bout, int index);

/// Moves both fighters, and keeps them apart and inside of the stage.
void moveFighters(Bout& bout);

/// Turns fighters toward the opponent, if they turn automatically.
void turnFighters(Bout& bout);

/// Tests attack boxes against body boxes.
void hitFighters(Bout& bout);

/// Starts and ends rounds and matches.
void goOnWithMatch(Bout& bout);

/// The current frame; null without an animation.
const Frame* frameOf(const Bout& bout, int index);

}  // namespace Rules
