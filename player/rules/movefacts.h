#pragma once

#include "rules/state.h"

namespace Rules {

/// What a move is worth in ticks, as it happens in a match of the character against itself.
struct MoveFacts
{
    static constexpr int MostTicks = 3600;  ///< longer moves are not followed to their end

    /// Ticks in a row with attack boxes.
    struct Active
    {
        int tick = 0;  ///< from the start of the move
        int ticks = 0;
    };

    /// What becomes of it when it meets the other one.
    struct Meeting
    {
        bool isMet = false;  ///< at some distance, it hits or is guarded
        int advantage = 0;   ///< ticks by which the attacker is free earlier
        int damage = 0;      ///< of all its hits
        int hits = 0;
        bool falls = false;  ///< the other one comes to lie
    };

    int total = 0;
    int start = 0;     ///< ticks before the first attack box; all of them without one
    int recovery = 0;  ///< ticks behind the last one
    QVector<Active> active;
    bool isInAir = false;  ///< begins in the air: what it is worth depends on the height
    Meeting hit;
    Meeting guard;
};

/// Plays a move of a character: alone, hitting and guarded, from as near as both can stand. Moves
/// in the air are played alone.
MoveFacts factsOf(const FighterData& data, int move);

/// The same without the meetings, which take the most time.
MoveFacts aloneFactsOf(const FighterData& data, int move);

}  // namespace Rules
