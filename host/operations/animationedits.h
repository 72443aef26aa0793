#pragma once

#include <QString>
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

/// Writes a copy behind an animation, in one step of undo. False, with `error`
/// and no change, for an identifier that cannot be one or is taken.
bool duplicateAnimation(Family::FamilyAnimations* list, int index, const QString& identifier,
                        QString* error);

/// Takes several animations out of the text, in one step of undo. Places
/// outside of the list, and repeated ones, count for nothing.
void removeAnimations(Family::FamilyAnimations* list, QVector<int> indexes);

}  // namespace Operations
