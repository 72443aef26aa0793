#pragma once

#include "rules/state.h"

namespace Rules {

/// The frame data of a move in ticks, in a match of the character against itself.
struct MoveFacts
{
    static constexpr int MostTicks = 3600;  ///< longer moves are not followed to their end

    /// Consecutive ticks with attack boxes.
    struct Active
    {
        int tick = 0;  ///< from the start of the move
        int ticks = 0;
    };

    /// The result when the move meets the opponent.
    struct Meeting
    {
        bool isMet = false;  ///< at some distance, it hits or is guarded
        int advantage = 0;   ///< ticks by which the attacker can act earlier
        int damage = 0;      ///< of all its hits together
        int hits = 0;
        bool falls = false;  ///< knocks the opponent down
    };

    int total = 0;
    int start = 0;     ///< ticks before the first attack box; all ticks if there is none
    int recovery = 0;  ///< ticks after the last attack box
    QVector<Active> active;
    bool isInAir = false;  ///< starts in the air, so its results depend on the height
    Meeting hit;
    Meeting guard;
};

/// Simulates a move: alone, hitting and guarded, from the smallest possible distance. Air moves are
/// only simulated alone.
MoveFacts factsOf(const FighterData& data, int move);

/// The same without hit and guard, which take most of the time.
MoveFacts aloneFactsOf(const FighterData& data, int move);

}  // namespace Rules
