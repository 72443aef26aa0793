#pragma once

namespace Rules {
struct Animation;
struct Frame;
}  // namespace Rules

namespace Player {

/// The frame of an animation `tick` ticks after its start; null if it has no frames.
const Rules::Frame* frameAt(const Rules::Animation& animation, int tick);

/// True during the first pass of an animation that ends: one with a frame that stays, or without
/// `loop`.
bool isInFirstPass(const Rules::Animation& animation, int tick);

}  // namespace Player
