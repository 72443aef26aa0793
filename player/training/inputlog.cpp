#include "training/inputlog.h"

#include "rules/tick.h"

namespace Player {

using Rules::FighterState;

QVector<HeldInput> lastInputs(const Rules::State& state, int fighter, int most)
{
    const FighterState& own = state.fighters[fighter];
    QVector<HeldInput> inputs;
    const int known = qMin(state.tick, FighterState::HistoryTicks - 1);
    for (int back = 0; back < known; ++back) {
        const quint8 signs = Rules::mirrored(
            own.history[(state.tick - back) % FighterState::HistoryTicks], own.facing);
        if (inputs.isEmpty() || inputs.constLast().signs != signs) {
            if (inputs.size() == most) {
                break;
            }
            inputs.append({signs, 0});
        }
        ++inputs.last().ticks;
    }
    return inputs;
}

}  // namespace Player
