#pragma once

#include <QString>

namespace Family {
class FamilyAnimations;
}

namespace App {

/// Edits of animations that one undo takes back, as long as the object lives. Undo
/// brings the cursor to one of them, where it stood before the edits.
class UndoStep
{
public:
    /// `row` is the place of that animation; no such place leaves the cursor to chance.
    UndoStep(Family::FamilyAnimations* list, int row, const QString& title);
    ~UndoStep();

private:
    Q_DISABLE_COPY(UndoStep)
    Family::FamilyAnimations* m_list;
};

}  // namespace App
