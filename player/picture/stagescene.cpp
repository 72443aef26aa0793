#include "picture/stagescene.h"

#include "picture/brush.h"
#include "picture/framecycle.h"

#include <cmath>

namespace Player {

using Family::FrameData;
using Family::Mixture;

namespace {

constexpr QRgb Wall = 0xff20262c;
constexpr QRgb Floor = 0xff3a424a;

constexpr Mixture mixtures[] = {Mixture::Over, Mixture::Add, Mixture::Subtract, Mixture::Multiply};

/// The maximum number of times that repetitions of a layer may cover the screen. A negative gap
/// nearly as large as the picture would take minutes to draw.
constexpr qint64 MostCovers = 64;

/// Clamps a number of pictures to the range of `int`, whatever the file says.
int counted(double pictures)
{
    return int(qBound(-1e9, pictures, 1e9));
}

/// The visible range of a row of repeated pictures: `step` is their distance, `place` the position
/// of the first, `low` and `high` its extent beside that, `length` the size of the canvas.
struct Row
{
    Row(bool isRepeated, int count, double step, double place, int low, int high, int length)
    {
        if (!isRepeated || step < 1) {
            last = 0;
            return;
        }
        first = counted(std::floor((-place - high) / step));
        last = counted(std::ceil((length - place - low) / step));
        if (count > 0) {
            first = qMax(first, 0);
            last = qMin(last, count - 1);
        }
    }

    int first = 0;
    int last = -1;
};

}  // namespace

StageScene::StageScene(const StageLook& look, int floor) : m_look(look), m_floor(floor)
{
    m_pictures.open(look.sprites);
    for (const LayerLook& layer : qAsConst(m_look.layers)) {
        Dye dye;
        dye.tint = layer.tint;
        dye.opacity = layer.opacity;
        m_pictures.addDye(dye);
    }
}

void StageScene::draw(Brush* brush, Side side, int tick)
{
    if (m_look.layers.isEmpty() && side == Behind) {
        const int floor = int(std::lround(brush->camera().at(0, m_floor).y()));
        brush->fill(brush->canvas(), Wall);
        brush->fill(brush->canvas().adjusted(0, floor, 0, 0), Floor);
    }
    for (int i = 0; i < m_look.layers.size(); ++i) {
        if ((m_look.layers.at(i).order < 0) == (side == Behind)) {
            drawLayer(brush, m_look.layers.at(i), i, tick);
        }
    }
}

const FrameData StageScene::frameOf(const LayerLook& layer, int tick) const
{
    const Rules::Frame* frame =
        layer.animation >= 0 ? frameAt(m_look.animations.at(layer.animation), tick) : nullptr;
    FrameData data = frame ? frame->data : FrameData();
    if (!frame) {
        data.group = layer.group;
        data.number = layer.number;
    }
    return data;
}

void StageScene::drawLayer(Brush* brush, const LayerLook& layer, int dye, int tick)
{
    const FrameData frame = frameOf(layer, tick);
    if (frame.group < 0) {
        return;
    }
    const Picture picture = m_pictures.find(frame.group, frame.number, dye);
    const QRect bounds = brush->bounds(frame, picture);
    if (picture.image.isNull() || bounds.isEmpty()) {
        return;
    }
    const Camera& camera = brush->camera();
    const double zoom = double(camera.zoom);
    const QPointF place =
        camera.at(layer.offset.x() + layer.velocityX * tick,
                  layer.offset.y() + layer.velocityY * tick, layer.followX, layer.followY);
    // The animation of a layer may change its size. The first frame decides the spacing, so that
    // the row does not move.
    const FrameData first = frameOf(layer, 0);
    const QSize size = m_pictures.sizeOf(first.group, first.number);
    const double across = (double(size.width()) + layer.gap.x()) * zoom;
    const double down = (double(size.height()) + layer.gap.y()) * zoom;
    const QRect canvas = brush->canvas();
    const Row columns(layer.alongX, layer.countX, across, place.x(), bounds.left(), bounds.right(),
                      canvas.width());
    const Row rows(layer.alongY, layer.countY, down, place.y(), bounds.top(), bounds.bottom(),
                   canvas.height());
    Showing showing;
    showing.mixture = mixtures[int(layer.blend)];
    const QSize part = bounds.size().boundedTo(canvas.size());
    const qint64 pixels = qint64(part.width()) * part.height() + 16;
    qint64 left = MostCovers * canvas.width() * canvas.height() / pixels + 1;
    for (int y = rows.first; y <= rows.last && left > 0; ++y) {
        for (int x = columns.first; x <= columns.last && left > 0; ++x, --left) {
            brush->draw(frame, picture, place + QPointF(x * across, y * down), showing);
        }
    }
}

}  // namespace Player
