#pragma once

#include "family/nodes/framedata.h"

namespace Family {

class FrameNode;

/// Writes the group and number of a frame's sprite. False, without an edit, if out of range.
bool writeSprite(FrameNode* frame, int group, int number);

/// Writes one option (`FrameOptionIndex`) with its value in `wanted`. Changes only tokens that
/// differ, removes an option that becomes default, and inserts a new one in the order of the
/// documentation. False, without an edit, for a value that the option does not accept.
bool writeOption(FrameNode* frame, int option, const FrameData& wanted);

/// The line of a frame: all options that differ from their defaults, in the order of the
/// documentation.
QString frameText(const FrameData& data);

/// The value of an option as code, even if default: "0, 0", "h", "yes" or "no" for `loop`.
QString optionText(int option, const FrameData& data);

/// The reverse. False, with `error`, for an invalid text.
bool optionFromText(int option, const QString& text, FrameData* data, QString* error);

}  // namespace Family
