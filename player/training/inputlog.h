#pragma once

#include <QVector>

namespace Rules {
struct State;
}

namespace Player {

/// An input of a fighter and its duration.
struct HeldInput
{
    quint8 signs = 0;  ///< directions as in a motion: forward is where the fighter looks
    int ticks = 0;
};

/// The last `most` inputs stored in a state, newest first.
QVector<HeldInput> lastInputs(const Rules::State& state, int fighter, int most);

}  // namespace Player
