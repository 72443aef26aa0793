#include "editors/code/foldedblocks_p.h"

#include "editors/code/codeeditor_p.h"

namespace Zorv {

FoldedBlocks::FoldedBlocks(CodeEditorPrivate* editor) : QObject(editor), m_editor(editor) {}

QTextBlock FoldedBlocks::blockAt(const QPoint&, QRect*) const
{
    return {};
}

void FoldedBlocks::paintBoxes(QPainter*) const {}

void FoldedBlocks::paintPreview(QPainter*) const {}

void FoldedBlocks::clearPreview() {}

void FoldedBlocks::mouseMoved(QMouseEvent*) {}

void FoldedBlocks::mousePressed(QMouseEvent*) {}

void FoldedBlocks::mend(int, int) {}

}  // namespace Zorv
