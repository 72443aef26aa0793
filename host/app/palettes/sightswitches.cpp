#include "app/palettes/sightswitches.h"

#include "app/actions/actionregistry.h"
#include "app/window/windowservices.h"

#include <zorv/animation/thumbnails/spritelist.h>
#include <zorv/editors/palette/colorwidget.h>
#include <zorv/editors/palette/palettewidget.h>
#include <zorv/graphics/renderwidget.h>
#include <zorv/image/palettepreviews.h>

#include <QAction>

namespace App {

namespace {

/// In the order of `Zorv::ColorBlindness`.
const struct
{
    const char* name;
    const char* text;
} kinds[] = {
    {"sight_protanopia", QT_TRANSLATE_NOOP("App::Actions", "Without &red (protanopia)")},
    {"sight_deuteranopia", QT_TRANSLATE_NOOP("App::Actions", "Without &green (deuteranopia)")},
    {"sight_tritanopia", QT_TRANSLATE_NOOP("App::Actions", "Without &blue (tritanopia)")},
};

template <class Widget>
void show(const QWidget* window, const Zorv::ColorSight& sight)
{
    for (Widget* widget : window->findChildren<Widget*>()) {
        widget->setColorSight(sight);
    }
}

}  // namespace

SightSwitches::SightSwitches(const WindowServices& services, QObject* parent)
    : QObject(parent), m_services(services)
{
}

QVector<ActionRow> SightSwitches::actions()
{
    QVector<ActionRow> rows;
    for (int i = 0; i < int(std::size(kinds)); ++i) {
        rows.append({kinds[i].name,
                     "sight.all",
                     kinds[i].text,
                     {},
                     [this, i] { choose(i); },
                     {},
                     nullptr,
                     ActionRow::Switch});
    }
    return rows;
}

void SightSwitches::choose(int index)
{
    const auto action = [this](int i) {
        return m_services.actions->action(QLatin1String(kinds[i].name));
    };
    m_sight.reset();
    for (int i = 0; i < int(std::size(kinds)); ++i) {
        if (i != index) {
            action(i)->setChecked(false);
        } else if (action(i)->isChecked()) {
            m_sight = Zorv::ColorBlindness(i);
        }
    }
    apply();
}

void SightSwitches::apply()
{
    const QWidget* window = m_services.window;
    show<Zorv::RenderWidget>(window, m_sight);
    show<Zorv::PaletteWidget>(window, m_sight);
    show<Zorv::ColorWidget>(window, m_sight);
    show<Zorv::PalettePreviews>(window, m_sight);
    show<Zorv::SpriteList>(window, m_sight);
}

}  // namespace App
