#include "app/undostep.h"

#include "family/familyanimations.h"
#include "family/familydocument.h"
#include "family/nodes/animationnode.h"

#include <QTextBlock>
#include <QTextCursor>

namespace App {

UndoStep::UndoStep(Family::FamilyDocument* document, int row, const QString& title)
    : m_document(document)
{
    const Family::FamilyAnimations* list = document->animations();
    const bool isThere = row >= 0 && row < list->count();
    const int line = isThere ? list->animation(row)->firstLine() : 0;
    // Undo goes to the cursor that begins the outermost edit block. The
    // document's own stands wherever its last edit was.
    QTextCursor cursor(document->findBlockByNumber(line));
    cursor.beginEditBlock();
    document->beginChange(title);
    cursor.endEditBlock();
}

UndoStep::~UndoStep()
{
    m_document->endChange();
}

}  // namespace App
