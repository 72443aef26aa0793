#include "picture/camera.h"

#include "rules/state.h"

#include <cmath>

// The zoom follows the distance of the fighters, in coarse steps and within the limits of the
// stage. It changes the size of the picture, so that pixels of the game stay whole. In x the camera
// follows the middle between both. In y it rests while both stand on the floor, and rises with the
// higher one.

namespace Player {

using Rules::State;

namespace {

constexpr double SideRoom = 90;   // pixels to show beside each fighter
constexpr double ZoomSteps = 64;  // coarse, so that the picture does not change its size all the
                                  // time

/// Like `qBound()`, but the limits may be in either order.
double within(double low, double value, double high)
{
    return low > high ? (low + high) / 2 : qBound(low, value, high);
}

double zoomOf(const StageLook& look, const State& state)
{
    const double apart =
        std::abs(state.fighters[0].x - state.fighters[1].x) / double(Rules::One) + 2 * SideRoom;
    const double wanted = within(look.smallestZoom, look.screen.width() / apart, look.largestZoom);
    return std::max(std::floor(wanted * ZoomSteps), 1.0) / ZoomSteps;
}

QPoint shakeOf(const Rules::Game& game, const State& state)
{
    if (state.shakeFighter < 0) {
        return {};
    }
    const QVector<int>& shake =
        game.fighters[state.shakeFighter].moves.at(state.shakeMove).hit.shake;
    const int pixels = shake.value(state.shakeTick);
    return {0, state.shakeTick % 2 == 0 ? pixels : -pixels};
}

}  // namespace

QPointF Camera::at(double placeX, double placeY, double followX, double followY) const
{
    const double down = placeY - rest - (y - rest) * followY;
    return {size.width() / 2.0 + (placeX - x * followX) * double(zoom) + shake.x(),
            size.height() - (bottom - down) * double(zoom) + shake.y()};
}

Camera cameraOf(const StageLook& look, const Rules::Game& game, const State& state)
{
    const double width = look.screen.width();
    const double height = look.screen.height();
    const double floor = game.stage.floor;
    const double zoom = zoomOf(look, state);
    Camera camera;
    const double fit = std::min({1.0, Camera::LargestPicture.width() * zoom / width,
                                 Camera::LargestPicture.height() * zoom / height});
    camera.zoom = float(fit);
    camera.size = QSize(int(std::ceil(width / zoom * fit)), int(std::ceil(height / zoom * fit)));
    camera.bottom = height / 2;
    camera.shake = shakeOf(game, state);

    // At every zoom the same part of the stage can be reached.
    const double more = (width / zoom - width) / 2;
    const double left = look.hasCamera ? look.camera.left() : game.stage.left + width / 2;
    const double right = look.hasCamera ? look.camera.right() : game.stage.right - width / 2;
    const double middle =
        (double(state.fighters[0].x) + state.fighters[1].x) / 2 / double(Rules::One);
    camera.x = within(left + more, middle, right - more);

    const double top = std::min(state.fighters[0].y, state.fighters[1].y) / double(Rules::One);
    camera.rest = floor - height / 4;
    if (look.hasCamera) {
        camera.rest = within(look.camera.top(), camera.rest, look.camera.bottom());
    }
    camera.y = camera.rest + std::min(top + height / 4, 0.0);
    if (look.hasCamera) {
        camera.y = within(look.camera.top(), camera.y, look.camera.bottom());
    }
    return camera;
}

}  // namespace Player
