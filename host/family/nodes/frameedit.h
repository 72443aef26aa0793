#pragma once

#include "family/nodes/framedata.h"

namespace Family {

class FrameNode;

/// Writes the group and number of a frame's sprite. False, and no edit, for
/// numbers out of range.
bool writeSprite(FrameNode* frame, int group, int number);

/// Writes one option (`FrameOptionIndex`) as `wanted` has it: only tokens that
/// differ change, an option at its default leaves the line, a new one goes to
/// its place in the order of the docs. False, and no edit, for a value that the
/// option does not take.
bool writeOption(FrameNode* frame, int option, const FrameData& wanted);

/// The line of a frame, with the options that are not at their defaults, in the order of the docs.
QString frameText(const FrameData& data);

/// The value of an option as code, also at its default: "0, 0", "h", "yes" or "no" for `loop`.
QString optionText(int option, const FrameData& data);

/// The reverse. False, with `error`, for a text that does not fit.
bool optionFromText(int option, const QString& text, FrameData* data, QString* error);

}  // namespace Family
