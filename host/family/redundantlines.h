#pragma once

class QStringList;

namespace Family {

class FamilyAnimations;

/// Removes the lines of animations that change nothing in the game, as one step of undo, and gives
/// their number. Those are:
///
/// - a contact box that its frame has already, of the same kind;
/// - a frame that looks like the one in front of it and has the same boxes: that one stays for the
///   time of both. Not one that is the loop frame, nor where the times have no room together.
///
/// A line with a comment stays, and so does one with a problem; with it its frame. Nothing to
/// remove leaves the document alone, and so does `dryRun`. `lines` takes what is done from top to
/// bottom: "12: frame 1,0" for a line that goes, "11: frame 1,0 -> delay 4" for one that takes its
/// time, with the numbers that lines have before, from 1. Empty lines are left out.
int removeRedundantLines(FamilyAnimations* animations, bool dryRun, QStringList* lines);

}  // namespace Family
