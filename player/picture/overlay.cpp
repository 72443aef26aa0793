#include "picture/overlay.h"

#include "picture/brush.h"
#include "picture/fighterscene.h"
#include "rules/state.h"

namespace Player {

using Rules::Box;
using Rules::FighterState;

namespace {

constexpr QRgb Attack = 0xffff5a4a;
constexpr QRgb Body = 0xff4aa8ff;
constexpr QRgb Push = 0xffffd84a;
constexpr QRgb Axis = 0xffffffff;
constexpr uint Inside = 0x50;
constexpr int AxisLength = 6;

/// Draws the boxes of a fighter: whole pixels from its axis, mirrored if it looks to the left.
class BoxPainter
{
public:
    BoxPainter(Brush* brush, const FighterState& state, int floor)
        : m_brush(brush), m_facing(state.facing), m_x(Rules::pixelOf(state.x)),
          m_y(Rules::pixelOf(state.y) + floor)
    {
    }

    void draw(const Box& box, QRgb color) const
    {
        const int left = m_facing > 0 ? box.left : -box.right;
        const int right = m_facing > 0 ? box.right : -box.left;
        const Camera& camera = m_brush->camera();
        const QPoint first = camera.at(m_x + left, m_y + box.top).toPoint();
        const QPoint last = camera.at(m_x + right + 1, m_y + box.bottom + 1).toPoint();
        const QRect area(first, last - QPoint(1, 1));
        m_brush->fill(area, (color & 0xffffff) | Inside << 24);
        m_brush->fill(QRect(area.left(), area.top(), area.width(), 1), color);
        m_brush->fill(QRect(area.left(), area.bottom(), area.width(), 1), color);
        m_brush->fill(QRect(area.left(), area.top(), 1, area.height()), color);
        m_brush->fill(QRect(area.right(), area.top(), 1, area.height()), color);
    }

    void drawAxis() const
    {
        const QPoint at = m_brush->camera().at(m_x, m_y).toPoint();
        m_brush->fill(QRect(at.x() - AxisLength, at.y(), 2 * AxisLength + 1, 1), Axis);
        m_brush->fill(QRect(at.x(), at.y() - AxisLength, 1, 2 * AxisLength + 1), Axis);
    }

private:
    Brush* m_brush;
    int m_facing;
    int m_x;
    int m_y;
};

}  // namespace

void drawOverlays(Brush* brush, const Rules::Game& game, const Rules::State& state,
                  Overlays overlays)
{
    for (int i = 0; i < 2; ++i) {
        const Rules::FighterData& data = game.fighters[i];
        const FighterState& fighter = state.fighters[i];
        const BoxPainter painter(brush, fighter, game.stage.floor);
        const Rules::Frame* frame = shownFrame(data, fighter);
        if (overlays & Overlay::Push) {
            painter.draw(data.push, Push);
        }
        if (overlays & Overlay::Boxes && frame) {
            for (const Box& box : frame->body) {
                painter.draw(box, Body);
            }
            // Attack boxes only hit during a move.
            const bool attacks = fighter.action == Rules::Action::Move;
            for (const Box& box : attacks ? frame->attack : QVector<Box>()) {
                painter.draw(box, Attack);
            }
        }
        if (overlays & Overlay::Axes) {
            painter.drawAxis();
        }
    }
}

}  // namespace Player
