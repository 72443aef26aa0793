#pragma once

#include "picture/look.h"
#include "picture/pictures.h"

namespace Player {

class Brush;

/// Draws the layers of a stage. A stage without layers is a bare floor.
class StageScene
{
public:
    enum Side { Behind, InFront };

    StageScene(const StageLook& look, int floor);

    const StageLook& look() const { return m_look; }

    /// Draws the layers behind or in front of the fighters, `tick` ticks after the start.
    void draw(Brush* brush, Side side, int tick);

    QStringList notes() const { return m_pictures.notes(); }

private:
    void drawLayer(Brush* brush, const LayerLook& layer, int dye, int tick);
    const Family::FrameData frameOf(const LayerLook& layer, int tick) const;

    StageLook m_look;
    int m_floor;
    Pictures m_pictures;
};

}  // namespace Player
