// Loads and saves the stage's settings. Users may have edited the file by hand, so any number can
// be out of range, and a host may lack a setting altogether. In that case the current value stays.

#include "core/interface.h"
#include "core/project.h"
#include "graphics/graphicwork/graphicsworkspace_p.h"
#include "graphics/stage/graphicsrenderer.h"
#include "graphics/stage/graphicsrenderer_p.h"

namespace Zorv {

namespace {

constexpr int Farthest = 100000;  // of an origin, in pixels
constexpr int LowestZoom = 255;   // as a number of old settings
constexpr int HighestZoom = ZoomLevels - 1;

QVariant option(const Interface* host, const char* key)
{
    return host->option(QLatin1String(key));
}

/// A setting from 0 up to, but not including, `count`.
int choice(const Interface* host, const char* key, int count, int inForce)
{
    const QVariant stored = option(host, key);
    return stored.isValid() ? qBound(0, stored.toInt(), count - 1) : inForce;
}

QColor color(const Interface* host, const char* key, const QColor& inForce)
{
    const QColor stored = host->colorOption(QLatin1String(key));
    return stored.isValid() ? stored : inForce;
}

QPoint bounded(QPoint origin)
{
    return {qBound(-Farthest, origin.x(), Farthest), qBound(-Farthest, origin.y(), Farthest)};
}

}  // namespace

void GraphicsWorkspacePrivate::applySettings()
{
    // All stages share these values, so any instance will do, even if none is attached.
    GraphicsRenderer stages;
    applyBackground(screenOfProject());
    const QVariant opacity = option(host, "box_opacity");
    stages.setupContactBoxes(color(host, "attackbox", ContactBoxes::color[0]),
                             color(host, "collisionbox", ContactBoxes::color[1]),
                             opacity.isValid() ? opacity.toFloat() : ContactBoxes::opacity);
    stages.setCrossHair(GraphicsRenderer::CrossHairType(choice(host, "crosshair_type", 3, 0)),
                        option(host, "crosshair_main").toString(),
                        option(host, "crosshair_secondary").toString(),
                        option(host, "crosshair_extra").toString());
    stages.setPriority(option(host, "sprite_over_guides").toBool(),
                       option(host, "contact_over_cross").toBool());
    // The two settings have each other's meaning. Existing settings files rely on that, so it
    // stays.
    stages.setZoomTable(static_cast<unsigned char>(choice(host, "zoom_mode", 2, Zoom::table)));
    stages.setZoomMode(GraphicsRenderer::ZoomMode(choice(host, "zoom_center", 2, Zoom::mode)));
    if (stage()) {
        restoreZoom();
    }
}

void GraphicsWorkspacePrivate::applyBackground(QSize resolution)
{
    GraphicsRenderer stages;
    const Background& ground = GraphicsRendererPrivate::background();
    stages.setBackground(
        color(host, "back_start", ground.start), color(host, "back_end", ground.end),
        GraphicsRenderer::BackgroundType(choice(host, "background_type", 3, 0)),
        {option(host, "background_x").toInt(), option(host, "background_y").toInt()},
        option(host, "background_file").toString(), resolution);
    if (renderer) {
        renderer->update();
    }
}

/// In sprite pixels; invalid if not known.
QSize GraphicsWorkspacePrivate::screenOfProject() const
{
    const Project* project = host->currentProject();
    const QPointF scale = project ? project->scale() : QPointF();
    if (scale.x() <= 0 || scale.y() <= 0) {
        return {};
    }
    const QSizeF size = project->gameSize();
    const auto sized = [](double length, double factor) {
        return static_cast<int>(qBound(0.0, length / factor, double(Farthest)));
    };
    return {sized(size.width(), scale.x()), sized(size.height(), scale.y())};
}

void GraphicsWorkspacePrivate::restoreOrigin()
{
    const QVariant x = option(host, "origin_x");
    const QVariant y = option(host, "origin_y");
    waitsForOrigin = !x.isValid() || !y.isValid();
    if (!waitsForOrigin) {
        GraphicsRendererPrivate::m_origin = bounded({x.toInt(), y.toInt()});
    }
    originAtFirst = GraphicsRendererPrivate::m_origin;
    centerFirstOrigin();
    q->update();
}

void GraphicsWorkspacePrivate::centerFirstOrigin()
{
    const QSize size = place ? place->stageSize() : QSize();
    if (waitsForOrigin && !size.isEmpty() && GraphicsRendererPrivate::m_origin == originAtFirst) {
        waitsForOrigin = false;
        GraphicsRendererPrivate::m_origin = {size.width() / 2, size.height() / 2};
        storePlace();
        q->update();
    }
}

/// A running timer means an unsaved change by the user. It is saved first, so that it is not lost.
void GraphicsWorkspacePrivate::restoreZoom()
{
    if (storeTimer.isActive()) {
        storePlace();
    }
    const QVariant stored = option(host, "zoom_level");
    const int level = stored.isValid() ? stored.toInt() : stage()->zoomLevel();
    stage()->setZoomLevel(
        static_cast<unsigned char>(level == LowestZoom ? 0 : qBound(0, level, HighestZoom)));
}

void GraphicsWorkspacePrivate::storePlace()
{
    storeTimer.stop();
    const QPoint origin = GraphicsRendererPrivate::m_origin;
    waitsForOrigin = waitsForOrigin && origin == originAtFirst;
    if (isActive && !waitsForOrigin) {
        store("origin_x", origin.x());
        store("origin_y", origin.y());
    }
    if (stage()) {
        store("zoom_level", stage()->zoomLevel());
    }
}

void GraphicsWorkspacePrivate::store(const char* key, const QVariant& value)
{
    if (option(host, key) != value) {
        host->setOption(QLatin1String(key), value);
    }
}

}  // namespace Zorv
