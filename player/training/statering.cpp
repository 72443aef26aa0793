#include "training/statering.h"

namespace Player {

void StateRing::push(const Rules::State& state)
{
    if (int(m_states.size()) < MostStates && m_next == int(m_states.size())) {
        m_states.push_back(state);
    } else {
        m_states[size_t(m_next)] = state;
    }
    m_next = (m_next + 1) % MostStates;
    m_count = qMin(m_count + 1, MostStates);
}

bool StateRing::pop(Rules::State* state)
{
    if (m_count == 0) {
        return false;
    }
    m_next = (m_next + MostStates - 1) % MostStates;
    --m_count;
    *state = m_states[size_t(m_next)];
    return true;
}

void StateRing::clear()
{
    m_next = 0;
    m_count = 0;
}

}  // namespace Player
