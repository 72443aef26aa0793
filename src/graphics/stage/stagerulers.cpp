#include "graphics/stage/graphicsrenderer_p.h"
#include "graphics/stage/rulerticks_p.h"

#include <QPainter>

#include <algorithm>

namespace Zorv {

namespace {

constexpr int Band = RulerTicks::Band;
constexpr int LabelPixels = 9;  // fits the label strip

QColor invertColor(const QColor& color)
{
    return {255 - color.red(), 255 - color.green(), 255 - color.blue()};
}

/// A rectangle of the horizontal ruler, transposed for the vertical one.
QRect along(Qt::Orientation orientation, const QRect& rect)
{
    return orientation == Qt::Horizontal ? rect
                                         : QRect(rect.y(), rect.x(), rect.height(), rect.width());
}

void drawTicks(QPainter& painter, Qt::Orientation orientation, const RulerTicks& ticks)
{
    // Filled rectangles are sharp with every paint engine.
    const auto line = [&](int place, int from) {
        painter.fillRect(along(orientation, QRect(place, from, 1, Band - from)),
                         painter.pen().color());
    };
    for (const int place : ticks.small) {
        line(place, 24);
    }
    for (const int place : ticks.large) {
        line(place, 20);
    }
    for (const RulerTicks::Label& label : ticks.labels) {
        const QRect room(label.place - 5 * ticks.step, 0, 10 * ticks.step, Band);
        painter.drawText(along(orientation, room), Qt::AlignCenter | Qt::TextDontClip,
                         QStringLiteral("%1").arg(label.value));
    }
}

}  // namespace

RulerTicks::RulerTicks(float zoom, int origin, int length)
{
    const int units = std::max(static_cast<int>(10.0 / static_cast<double>(zoom)), 1);
    step = std::max(static_cast<int>(static_cast<float>(units) * zoom), 1);
    const qint64 first = (qint64(origin) - Band) % step + Band;
    qint64 number = (origin - first) / step;
    const int count = (length - Band) / step + 1;
    for (int tick = 0; tick < count; ++tick, --number) {
        const int place = static_cast<int>(first) + tick * step;
        if (number % LabelledTick != 0) {
            small.append(place);
            continue;
        }
        large.append(place);
        // The label of the first tick would overlap the other ruler.
        if (tick > 0) {
            labels.append({place, -number * units});
        }
    }
}

void GraphicsRendererPrivate::renderRulers(QPainter& painter)
{
    if (!rulersVisible) {
        return;
    }
    const Background& ground = background();
    const int width = widgetSize.width();
    const int height = widgetSize.height();
    painter.fillRect(QRect(0, 0, Band, height), ground.start);
    painter.fillRect(QRect(Band, 0, std::max(width - Band, 0), Band), ground.start);
    painter.fillRect(QRect(10, 10, 10, height), ground.end);
    painter.fillRect(QRect(20, 10, std::max(width - 10, 0), 10), ground.end);

    painter.setPen(invertColor(ground.start));
    QFont font = painter.font();
    font.setPixelSize(LabelPixels);
    painter.setFont(font);
    drawTicks(painter, Qt::Horizontal, RulerTicks(zoom, m_origin.x(), width));
    drawTicks(painter, Qt::Vertical, RulerTicks(zoom, m_origin.y(), height));
}

}  // namespace Zorv
