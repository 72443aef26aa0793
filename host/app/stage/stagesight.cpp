#include "app/stage/stagesight.h"

#include "app/stage/stagerenderer.h"
#include "family/stage/framecomposer.h"

#include <zorv/graphics/renderwidget.h>

namespace App {

namespace {

constexpr int Margin = 4;  // around what comes into sight
constexpr int RulerWidth = 30;

/// By how much a range has to be moved to lie inside of another, or in its middle if it is longer.
int wayInto(int first, int last, int from, int to)
{
    if (last - first > to - from) {
        return (from + to - first - last) / 2;
    }
    return first < from ? from - first : last > to ? to - last : 0;
}

}  // namespace

QRect StageSight::areaOf(const Family::FrameNode& frame, const Family::SpriteCollection* sprites,
                         float zoom)
{
    Family::FrameStyle style;
    style.parts = Family::FrameStyle::Sprite | Family::FrameStyle::Boxes;
    style.zoom = zoom;
    QString error;  // a sprite that is missing takes no room
    return Family::FrameComposer(sprites, style).bounds(frame, &error);
}

bool StageSight::isWhole(const Family::FrameNode& frame,
                         const Family::SpriteCollection* sprites) const
{
    const QRect area = areaOf(frame, sprites, m_stage->zoom());
    return area.isEmpty() || sight().contains(area.translated(m_stage->origin()));
}

void StageSight::bring(const Family::FrameNode& frame, const Family::SpriteCollection* sprites)
{
    if (sight().isEmpty() || isWhole(frame, sprites)) {
        return;
    }
    const QRect sight = this->sight().adjusted(Margin, Margin, -Margin, -Margin);
    QRect area = areaOf(frame, sprites, m_stage->zoom());
    while (m_stage->zoomLevel() > 0 &&
           (area.width() > sight.width() || area.height() > sight.height())) {
        m_stage->setZoomLevel(uchar(m_stage->zoomLevel() - 1));
        area = areaOf(frame, sprites, m_stage->zoom());
    }
    area.translate(m_stage->origin());
    m_stage->setOrigin(m_stage->origin() +
                       QPoint(wayInto(area.left(), area.right(), sight.left(), sight.right()),
                              wayInto(area.top(), area.bottom(), sight.top(), sight.bottom())));
}

/// Nothing can be pressed where rulers stand, shown or not.
QRect StageSight::sight() const
{
    return m_stage->widget() ? m_stage->widget()->rect().adjusted(RulerWidth, RulerWidth, 0, 0)
                             : QRect();
}

}  // namespace App
