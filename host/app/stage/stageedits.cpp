#include "app/stage/stageedits.h"

#include "app/stage/stagerenderer.h"
#include "family/familydocument.h"
#include "family/nodes/framenode.h"
#include "family/stage/frameprovider.h"

#include <zorv/code/codedoc/contactboxescode.h>

namespace App {

using Zorv::ContactBoxCode;
using Zorv::GraphicsRenderer;

StageEdits::StageEdits(StageRenderer* stage, const Family::FrameProvider* frame, QObject* parent)
    : QObject(parent), m_stage(stage), m_frame(frame)
{
    connect(stage, &GraphicsRenderer::appendContactBox, this, &StageEdits::addBox);
    connect(stage, &GraphicsRenderer::itemReleased, this, &StageEdits::itemReleased);
}

ContactBoxCode* StageEdits::addBox(ContactBoxCode::BoxType type, QRect rect)
{
    const Family::FrameNode* frame = m_frame->frame();
    ContactBoxCode* box = frame ? frame->contactBoxes(type)->add(rect) : nullptr;
    emit released();
    return box;
}

void StageEdits::itemReleased(GraphicsRenderer::ItemType type, void*, QPoint position)
{
    if (type == GraphicsRenderer::SecondaryCross) {
        moveFrame(position);
    } else if (type == GraphicsRenderer::ContactBoxesType) {
        m_stage->updateSelectedBoxes();
        emit released();
    }
}

void StageEdits::moveFrame(QPoint offset)
{
    Family::FrameNode* frame = m_frame->frame();
    if (frame && frame->offset() != offset) {
        Zorv::CodeDocument* document = frame->document();
        document->beginChange(tr("Move frame"));
        frame->setOffset(offset);
        document->endChange();
    }
    // Also for an offset that the grammar does not take.
    emit released();
}

}  // namespace App
