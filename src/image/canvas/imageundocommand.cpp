#include "image/canvas/imageundocommand.h"

namespace Zorv {

ImageUndoCommand::ImageUndoCommand(const QString& text) : QUndoCommand(text) {}

ImageUndoCommand::~ImageUndoCommand() = default;

void ImageUndoCommand::redo()
{
    if (m_firstRedo) {
        m_firstRedo = false;
    } else {
        doRedo();
    }
}

qint64 ImageUndoCommand::pack(qint64)
{
    return 0;
}

}  // namespace Zorv
