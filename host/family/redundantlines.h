#pragma once

class QStringList;

namespace Family {

class FamilyAnimations;

/// Removes the lines of animations that change nothing in the game, as one undo step, and returns
/// their number. These are:
///
/// - a contact box that its frame already has, of the same type;
/// - a frame that looks like the frame before it and has the same boxes: the earlier frame stays
///   and gets the time of both. Not the loop frame, and not if the sum of the times is too large.
///
/// A line with a comment or a problem stays, and then its frame stays too. With nothing to remove,
/// or with `dryRun`, the document is not changed. `lines` receives what is done, from top to
/// bottom: "12: frame 1,0" for a removed line, "11: frame 1,0 -> delay 4" for a frame with a longer
/// time. The line numbers are those before the edit, from 1. Empty lines are not listed.
int removeRedundantLines(FamilyAnimations* animations, bool dryRun, QStringList* lines);

}  // namespace Family
