#pragma once

#include <QString>

namespace Family {
class FamilyDocument;
}

namespace App {

/// Edits of a text that one undo takes back, as long as the object lives. Undo
/// brings the cursor to an animation: to its place before the edits.
class UndoStep
{
public:
    /// `row` is the place of the animation in the list; without such a one the
    /// cursor goes to the start of the text.
    UndoStep(Family::FamilyDocument* document, int row, const QString& title);
    ~UndoStep();

private:
    Q_DISABLE_COPY(UndoStep)
    Family::FamilyDocument* m_document;
};

}  // namespace App
