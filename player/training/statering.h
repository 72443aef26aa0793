#pragma once

#include "rules/state.h"

#include <vector>

namespace Player {

/// The last ten seconds of a match, to go back to.
class StateRing
{
public:
    static constexpr int MostStates = 600;

    /// The newest one.
    void push(const Rules::State& state);

    /// Takes the newest one away. False, with `state` as it was, if there is none.
    bool pop(Rules::State* state);

    void clear();
    int count() const { return m_count; }

private:
    std::vector<Rules::State> m_states;  // grows up to its size once
    int m_next = 0;
    int m_count = 0;
};

}  // namespace Player
