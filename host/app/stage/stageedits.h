#pragma once

#include <zorv/graphics/stage/graphicsrenderer.h>

#include <QObject>

namespace Family {
class FrameProvider;
}

namespace App {

class StageRenderer;

/// What is drawn and dragged on the stage becomes text: one step of undo each.
class StageEdits : public QObject
{
    Q_OBJECT

public:
    /// Both outlive it.
    StageEdits(StageRenderer* stage, const Family::FrameProvider* frame, QObject* parent);

signals:
    /// The text has taken it, or not: the stage is to be brought in line with it.
    void released();

private:
    Zorv::ContactBoxCode* addBox(Zorv::ContactBoxCode::BoxType type, QRect rect);
    void itemReleased(Zorv::GraphicsRenderer::ItemType type, void* item, QPoint position);
    void moveFrame(QPoint offset);

    StageRenderer* m_stage;
    const Family::FrameProvider* m_frame;
};

}  // namespace App
