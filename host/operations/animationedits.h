#pragma once

#include "family/assets/assetid.h"

#include <QStringList>
#include <QVector>

namespace Family {
class FamilyAnimations;
}  // namespace Family

namespace Operations {

/// The place of the animation that `reference` names: an identifier, or "#3" for
/// a place counted from 0. -1 without one; `error` then tells what there is. An
/// identifier that several animations have names none of them.
int findAnimation(const Family::FamilyAnimations* list, const QString& reference, QString* error);

/// An identifier that no animation has: the next free number behind a number,
/// "jab-2" and so on behind a word.
QString freeIdentifier(const Family::FamilyAnimations* list, const QString& identifier);

/// The number behind the highest that an animation has; "0" without any.
QString nextAnimationNumber(const Family::FamilyAnimations* list);

/// Why no new animation can have an identifier, beside those that are taken; empty if one can.
QString animationNameFault(const QStringList& taken, const QString& identifier);

/// The identifiers of all animations, in their order.
QStringList animationIdentifiers(const Family::FamilyAnimations* list);

/// A frame that is to be written.
struct NewFrame
{
    Family::AssetId sprite;
    int ticks = 1;  ///< -1 for one that stays
};

/// Writes an animation at the end, in one step of undo. False, with `error` and no change, for an
/// identifier that cannot be one or is taken, or without frames.
bool addAnimation(Family::FamilyAnimations* list, const QString& identifier,
                  const QVector<NewFrame>& frames, QString* error);

/// The ticks of frames that take so many milliseconds, each at least one. Where none is shorter
/// than a tick their sum is never off by more than half of one.
QVector<int> ticksOf(const QVector<int>& milliseconds);

/// Writes a copy behind an animation, in one step of undo. False, with `error`
/// and no change, for an identifier that cannot be one or is taken.
bool duplicateAnimation(Family::FamilyAnimations* list, int index, const QString& identifier,
                        QString* error);

/// Takes several animations out of the text, in one step of undo. Places
/// outside of the list, and repeated ones, count for nothing.
void removeAnimations(Family::FamilyAnimations* list, QVector<int> indexes);

}  // namespace Operations
