#pragma once

namespace Rules {
struct Animation;
struct Frame;
}  // namespace Rules

namespace Player {

/// The frame that an animation shows so many ticks after its start; null for one without frames.
const Rules::Frame* frameAt(const Rules::Animation& animation, int tick);

/// True as long as an animation that ends, in a frame that stays or without `loop`, is in its first
/// pass.
bool isInFirstPass(const Rules::Animation& animation, int tick);

}  // namespace Player
