#include "app/undostep.h"

#include "family/familyanimations.h"
#include "family/nodes/animationnode.h"

#include <QTextBlock>
#include <QTextCursor>

namespace App {

UndoStep::UndoStep(Family::FamilyAnimations* list, int row, const QString& title) : m_list(list)
{
    // Undo goes to the cursor that begins the outermost edit block. The one of the
    // document stands wherever the last edit of any kind was. Qt notes the place only
    // if the first edit is at another one, so it is inside of the line.
    const bool isThere = row >= 0 && row < list->count();
    QTextCursor cursor = isThere ? QTextCursor(list->animation(row)->block()) : QTextCursor();
    cursor.movePosition(QTextCursor::NextCharacter);
    cursor.beginEditBlock();
    list->beginChange(title);
    cursor.endEditBlock();
}

UndoStep::~UndoStep()
{
    m_list->endChange();
}

}  // namespace App
