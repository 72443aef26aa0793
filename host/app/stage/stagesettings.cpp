#include "app/stage/stagesettings.h"

#include <zorv/core/interface.h>
#include <zorv/graphics/stage/graphicsrenderer.h>

#include <QVariant>

namespace App {

using Zorv::GraphicsRenderer;

namespace {

constexpr int HighestZoom = 11;
constexpr int Farthest = 100000;  // of an origin, in pixels

struct PartRow
{
    const char* action;
    const char* key;  // null for what is not kept
};

constexpr PartRow parts[StageSettings::PartCount] = {
    {"stage_main_cross", nullptr},
    {"stage_secondary_cross", "show_cross1"},
    {"stage_extra_cross", "show_cross2"},
    {"stage_rulers", "show_rulers"},
    {"stage_guide_lines", "show_guides"},
    {"stage_attack_box", "show_attack_box"},
    {"stage_collision_box", "show_collision_box"},
};

QVariant option(const char* key)
{
    return Zorv::Interface::instance()->option(QLatin1String(key));
}

void keep(const char* key, const QVariant& value)
{
    Zorv::Interface::instance()->setOption(QLatin1String(key), value);
}

/// A number that a hand wrote into the settings may be any.
template <class Value>
Value choice(const char* key, int count)
{
    return Value(qBound(0, option(key).toInt(), count - 1));
}

}  // namespace

StageSettings::StageSettings(GraphicsRenderer* stage) : m_stage(stage)
{
    m_stage->setGroundFitted(true);
    for (int i = 0; i < PartCount; ++i) {
        m_isShown[size_t(i)] = !parts[i].key || option(parts[i].key).toBool();
    }
    showParts();
}

const char* StageSettings::actionName(Part part)
{
    return parts[part].action;
}

void StageSettings::setShown(Part part, bool isShown)
{
    if (m_isShown[part] == isShown) {
        return;
    }
    m_isShown[part] = isShown;
    if (parts[part].key) {
        keep(parts[part].key, isShown);
    }
    showParts();
}

void StageSettings::showParts()
{
    m_stage->setVisibility(isShown(MainCross), isShown(SecondaryCross), isShown(ExtraCross),
                           isShown(AttackBoxes), isShown(CollisionBoxes), isShown(Rulers),
                           isShown(Guides));
}

void StageSettings::apply(QSize screen)
{
    const auto colour = [](const char* key) {
        return Zorv::Interface::instance()->colorOption(QLatin1String(key));
    };
    m_stage->setBackground(colour("back_start"), colour("back_end"),
                           choice<GraphicsRenderer::BackgroundType>("background_type", 3),
                           QPoint(option("background_x").toInt(), option("background_y").toInt()),
                           option("background_file").toString(), screen);
    m_stage->setupContactBoxes(colour("attackbox"), colour("collisionbox"),
                               qBound(0.0F, option("box_opacity").toFloat(), 1.0F));
    m_stage->setCrossHair(choice<GraphicsRenderer::CrossHairType>("crosshair_type", 3),
                          option("crosshair_main").toString(),
                          option("crosshair_secondary").toString(),
                          option("crosshair_extra").toString());
    m_stage->setPriority(option("sprite_over_guides").toBool(),
                         option("contact_over_cross").toBool());
    // The names of the two settings are crossed; files of settings have them so.
    m_stage->setZoomTable(choice<unsigned char>("zoom_mode", 2));
    // The pointer is for the wheel alone; all else goes about the origin then.
    m_stage->setZoomMode(choice<GraphicsRenderer::ZoomMode>("zoom_center", 2));
    m_stage->setZoomLevel(m_stage->zoomLevel());
}

StageSettings::Place StageSettings::restorePlace(QSize stageSize, const QString& file)
{
    m_stage->setZoomLevel(choice<unsigned char>("zoom_level", HighestZoom + 1));
    const QVariant x = option("origin_x");
    const QVariant y = option("origin_y");
    const QSize size = option("origin_size").toSize();
    if (!x.isValid() || !y.isValid()) {
        return {QPoint(stageSize.width() / 2, stageSize.height() * 3 / 4), stageSize, false};
    }
    return {{qBound(-Farthest, x.toInt(), Farthest), qBound(-Farthest, y.toInt(), Farthest)},
            size.isEmpty() ? stageSize : size,
            file == option("origin_text").toString()};
}

void StageSettings::keepPlace(QSize stageSize, const QString& file) const
{
    keep("origin_x", m_stage->origin().x());
    keep("origin_y", m_stage->origin().y());
    keep("origin_size", stageSize);
    keep("origin_text", file);
    keep("zoom_level", m_stage->zoomLevel());
}

}  // namespace App
