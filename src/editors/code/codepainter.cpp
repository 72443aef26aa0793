#include "editors/code/codepainter_p.h"

#include "editors/code/codeeditor_p.h"

namespace Zorv {

void CodePainter::paint(QPaintEvent* event)
{
    m_editor->basePaint(event);
}

}  // namespace Zorv
