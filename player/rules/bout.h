#pragma once

#include "rules/tick.h"

namespace Rules {

/// What the parts of a tick work on, and what several of them do.
struct Bout
{
    const Game& game;
    State& state;
    bool stands[2] = {false, false};        ///< in a hit stop in this tick
    bool isThreatened[2] = {false, false};  ///< by a move of the other one that can still hit

    Bout(const Game& theGame, State& theState) : game(theGame), state(theState) {}

    FighterState& fighter(int index) { return state.fighters[index]; }
    const FighterState& fighter(int index) const { return state.fighters[index]; }
    const FighterData& data(int index) const { return game.fighters[index]; }

    /// What is held now, with forward where the fighter looks.
    quint8 signs(int index) const;

    void show(int index, int animation);
    void showRole(int index, Family::AnimationRole role);

    /// Shows a role, after one that leads to it if the character has that.
    void showAfter(int index, Family::AnimationRole first, Family::AnimationRole then);

    /// Another action, which shows nothing by itself.
    void enter(int index, Action action);
    void stand(int index);
    void forgetCommands(int index);
    void startMove(int index, int move);
    void tell(Event::Kind kind, int index, int move, qint32 x, qint32 y);
};

/// Notes the inputs and counts the commands that they complete.
void takeInputs(Bout& bout, const Inputs& inputs);

/// Animations, stuns and waits of a fighter go on.
void goOn(Bout& bout, int index);

/// Notes who is near an attack, before anybody decides: both know the same of each other.
void seeThreats(Bout& bout);

/// What a fighter does next.
void decide(Bout& bout, int index);

/// Both move, and are kept apart and inside of the stage.
void moveFighters(Bout& bout);

/// Turns those who look at the other one of their own accord.
void turnFighters(Bout& bout);

/// Compares attack boxes with body boxes.
void hitFighters(Bout& bout);

/// Rounds and matches begin and end.
void goOnWithMatch(Bout& bout);

/// The current frame; null without an animation.
const Frame* frameOf(const Bout& bout, int index);

}  // namespace Rules
