#pragma once

#include "family/assets/assetid.h"

#include <QStringList>
#include <QVector>

namespace Family {
class FamilyAnimations;
}  // namespace Family

namespace Operations {

/// The index of the animation that `reference` names: an identifier, or "#3" for an index counted
/// from 0. -1 if there is none; `error` then lists what exists. An identifier that several
/// animations share matches none of them.
int findAnimation(const Family::FamilyAnimations* list, const QString& reference, QString* error);

/// An unused identifier based on `identifier`: the next free number after a number, "jab-2" and so
/// on after a word.
QString freeIdentifier(const Family::FamilyAnimations* list, const QString& identifier);

/// The highest number of any animation plus one; "0" without numbers.
QString nextAnimationNumber(const Family::FamilyAnimations* list);

/// Why `identifier` is not a valid name for a new animation, apart from `taken`; empty if it is
/// valid.
QString animationNameFault(const QStringList& taken, const QString& identifier);

/// The identifiers of all animations, in order.
QStringList animationIdentifiers(const Family::FamilyAnimations* list);

/// A frame to be written.
struct NewFrame
{
    Family::AssetId sprite;
    int ticks = 1;  ///< -1 for a frame that stays
};

/// Appends an animation, as one undo step. Returns false with `error` and changes nothing if the
/// identifier is invalid or taken, or if there are no frames.
bool addAnimation(Family::FamilyAnimations* list, const QString& identifier,
                  const QVector<NewFrame>& frames, QString* error);

/// Converts frame times from milliseconds to ticks. Each frame gets at least one tick. If no frame
/// is shorter than a tick, the rounding error of the sum is at most half a tick.
QVector<int> ticksOf(const QVector<int>& milliseconds);

/// Inserts a copy after an animation, as one undo step. Returns false with `error` and changes
/// nothing if the identifier is invalid or taken.
bool duplicateAnimation(Family::FamilyAnimations* list, int index, const QString& identifier,
                        QString* error);

/// Removes several animations from the text, as one undo step. Indexes out of range and duplicates
/// are ignored.
void removeAnimations(Family::FamilyAnimations* list, QVector<int> indexes);

}  // namespace Operations
