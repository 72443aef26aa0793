#pragma once

#include "rules/state.h"

#include <vector>

namespace Player {

/// A ring buffer of the last ten seconds of a match, to go back to.
class StateRing
{
public:
    static constexpr int MostStates = 600;

    /// Adds the newest state.
    void push(const Rules::State& state);

    /// Removes and returns the newest state. False, with `state` unchanged, if there is none.
    bool pop(Rules::State* state);

    void clear();
    int count() const { return m_count; }

private:
    std::vector<Rules::State> m_states;  // grows to its full size once
    int m_next = 0;
    int m_count = 0;
};

}  // namespace Player
