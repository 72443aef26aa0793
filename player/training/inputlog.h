#pragma once

#include <QVector>

namespace Rules {
struct State;
}

namespace Player {

/// The last inputs of a fighter with their length in ticks, the newest first.
struct HeldInput
{
    quint8 signs = 0;  ///< as a motion has them: forward is where the fighter looks
    int ticks = 0;
};

/// Reads them from what a state remembers; `most` of them.
QVector<HeldInput> lastInputs(const Rules::State& state, int fighter, int most);

}  // namespace Player
