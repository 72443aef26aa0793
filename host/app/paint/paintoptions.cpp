#include "app/paint/paintoptions.h"

#include "app/actions/actionregistry.h"
#include "app/paint/frameshine.h"

#include <zorv/core/interface.h>
#include <zorv/image/imagerenderer.h>
#include <zorv/image/tools/strokeoptions.h>

#include <QAction>

#include <iterator>

namespace App {

using Zorv::ImageRenderer;
using Zorv::StrokeOptions;

namespace {

void setSymmetry(StrokeOptions* options, StrokeOptions::SymmetryFlag flag, bool isOn)
{
    StrokeOptions::Symmetry symmetry = options->symmetry();
    symmetry.setFlag(flag, isOn);
    options->setSymmetry(symmetry);
}

struct Switch
{
    const char* name;
    const char* text;
    void (*apply)(ImageRenderer* renderer, FrameShine* shine, bool isOn);
};

// clang-format off
const Switch switches[] = {
    {"paint_pixel_perfect", QT_TRANSLATE_NOOP("App::Actions", "Strokes without &corners"),
     [](ImageRenderer* renderer, FrameShine*, bool isOn) { renderer->strokeOptions()->setPixelPerfect(isOn); }},
    {"paint_straight",      QT_TRANSLATE_NOOP("App::Actions", "&Even steps with Shift"),
     [](ImageRenderer* renderer, FrameShine*, bool isOn) { renderer->strokeOptions()->setStraightLines(isOn); }},
    {"paint_shading",       QT_TRANSLATE_NOOP("App::Actions", "&Shade along a ramp"),
     [](ImageRenderer* renderer, FrameShine*, bool isOn) { renderer->strokeOptions()->setShading(isOn); }},
    {"paint_symmetry_x",    QT_TRANSLATE_NOOP("App::Actions", "Symmetry &left and right"),
     [](ImageRenderer* renderer, FrameShine*, bool isOn) { setSymmetry(renderer->strokeOptions(), StrokeOptions::LeftRight, isOn); }},
    {"paint_symmetry_y",    QT_TRANSLATE_NOOP("App::Actions", "Symmetry &top and bottom"),
     [](ImageRenderer* renderer, FrameShine*, bool isOn) { setSymmetry(renderer->strokeOptions(), StrokeOptions::TopBottom, isOn); }},
    {"paint_grid",          QT_TRANSLATE_NOOP("App::Actions", "&Grid of pixels"),
     [](ImageRenderer* renderer, FrameShine*, bool isOn) { renderer->setOption(ImageRenderer::PixelGrid, isOn); }},
    {"paint_axis",          QT_TRANSLATE_NOOP("App::Actions", "&Axis of the sprite"),
     [](ImageRenderer* renderer, FrameShine*, bool isOn) { renderer->setOption(ImageRenderer::CanvasAxis, isOn); }},
    {"paint_shine",         QT_TRANSLATE_NOOP("App::Actions", "&Frames before and after"),
     [](ImageRenderer*, FrameShine* shine, bool isOn) { shine->setOn(isOn); }},
};
// clang-format on

}  // namespace

PaintOptions::PaintOptions(ImageRenderer* renderer, FrameShine* shine, QObject* parent)
    : QObject(parent), m_renderer(renderer), m_shine(shine)
{
}

QVector<ActionRow> PaintOptions::actions()
{
    QVector<ActionRow> rows;
    for (int i = 0; i < int(std::size(switches)); ++i) {
        const auto run = [this, i] {
            keep(i, m_registry->action(QLatin1String(switches[i].name))->isChecked());
        };
        rows.append({switches[i].name,
                     "paint.all",
                     switches[i].text,
                     {},
                     run,
                     {},
                     "sprites",
                     ActionRow::Switch});
    }
    return rows;
}

void PaintOptions::restore(const ActionRegistry* registry)
{
    m_registry = registry;
    for (int i = 0; i < int(std::size(switches)); ++i) {
        const QString name = QLatin1String(switches[i].name);
        const bool isOn = Zorv::Interface::instance()->option(name).toBool();
        registry->action(name)->setChecked(isOn);
        switches[i].apply(m_renderer, m_shine, isOn);
    }
}

void PaintOptions::keep(int row, bool isOn)
{
    Zorv::Interface::instance()->setOption(QLatin1String(switches[row].name), isOn);
    switches[row].apply(m_renderer, m_shine, isOn);
}

}  // namespace App
