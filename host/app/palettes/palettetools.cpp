#include "app/palettes/palettetools.h"

#include "app/actions/actionregistry.h"
#include "app/palettes/chosenpalette.h"
#include "app/palettes/familypaletteeditor.h"
#include "app/palettes/palettedialogs.h"
#include "app/palettes/paletteusage.h"
#include "app/window/statusfields.h"
#include "app/window/windowservices.h"
#include "family/assets/palettelist.h"
#include "family/assets/spritecollection.h"
#include "operations/media/paletteedits.h"

#include <zorv/core/dialogs/dialogs.h>
#include <zorv/core/fileinput.h>
#include <zorv/editors/palette/palettewidget.h>

#include <QAction>
#include <QColor>

namespace App {

using Operations::MediaResult;
using Zorv::Dialogs;
using Zorv::RGBA;

namespace {

const char* const gridActions[] = {"palette_duplicate", "palette_sort",    "palette_ramp",
                                   "palette_hue",       "palette_replace", "palette_uses"};

QColor toColor(RGBA color)
{
    return {color.r, color.g, color.b, color.a};
}

}  // namespace

PaletteTools::PaletteTools(const WindowServices& services, FamilyPaletteEditor* editor,
                           PaletteUsage* usage, QObject* parent)
    : QObject(parent), m_services(services), m_editor(editor), m_usage(usage)
{
}

QVector<ActionRow> PaletteTools::actions()
{
    const Members<PaletteTools> on(this);
    // clang-format off
    return {
        {"palette_duplicate", "pal.list",    QT_TRANSLATE_NOOP("App::Actions", "D&uplicate palette"),                {}, on(&PaletteTools::duplicate), on(&PaletteTools::hasPalette)},
        {"palette_sort",      "pal.colours", QT_TRANSLATE_NOOP("App::Actions", "Sort &colours..."),                  {}, on(&PaletteTools::sort),      on(&PaletteTools::hasPalette)},
        {"palette_ramp",      "pal.colours", QT_TRANSLATE_NOOP("App::Actions", "&Ramp between two slots..."),        {}, on(&PaletteTools::ramp),      on(&PaletteTools::hasSlotsBetween)},
        {"palette_hue",       "pal.colours", QT_TRANSLATE_NOOP("App::Actions", "Shift &hue..."),                     {}, on(&PaletteTools::shiftHue),  on(&PaletteTools::hasPalette)},
        {"palette_replace",   "pal.colours", QT_TRANSLATE_NOOP("App::Actions", "Replace colour in all &palettes..."), {}, on(&PaletteTools::replace),   on(&PaletteTools::hasSlot)},
        {"palette_uses",      "pal.sprites", QT_TRANSLATE_NOOP("App::Actions", "Count uses of co&lours"),            {}, on(&PaletteTools::countUses), on(&PaletteTools::hasSprites)},
    };
    // clang-format on
}

void PaletteTools::actionsMade()
{
    for (const char* name : gridActions) {
        m_editor->view()->addAction(m_services.actions->action(QLatin1String(name)));
    }
}

bool PaletteTools::hasPalette() const
{
    return m_editor->currentPalette();
}

bool PaletteTools::hasSprites() const
{
    const Family::SpriteCollection* sprites = m_editor->sprites();
    return sprites && sprites->count() > 0;
}

bool PaletteTools::hasSlot() const
{
    return hasPalette() && SelectedSlots::of(*m_editor).count > 0;
}

bool PaletteTools::hasSlotsBetween() const
{
    const SelectedSlots selected = SelectedSlots::of(*m_editor);
    return hasPalette() && selected.last > selected.first + 1;
}

void PaletteTools::duplicate()
{
    const ChosenPalette chosen = comeForward();
    if (!chosen.isThere()) {
        return;
    }
    if (Family::FamilyPalette* copy =
            Operations::duplicatePalette(chosen.sprites(), chosen.row())) {
        m_editor->setCurrentPalette(copy);
    }
}

/// Sorting also changes pixel indexes in the file, so all pixels must be in the file first. Painted
/// changes are stored with the sprite's own palette, which the grid shows meanwhile.
void PaletteTools::sort()
{
    const ChosenPalette chosen = comeForward();
    if (!chosen.isThere()) {
        return;
    }
    SortDialog dialog(chosen, m_services.window);
    if (dialog.exec() != QDialog::Accepted || !chosen.isThere()) {
        return;
    }
    const Zorv::PaletteOrder order = dialog.order();
    if (order == Zorv::sameOrder()) {
        return;
    }
    const QString title = tr("Sort colours");
    const QPointer<Family::SpriteCollection> sprites = chosen.sprites();
    MediaResult result;
    sprites->beginChange(title);
    const bool isTaken = Zorv::FileInput::take(sprites, &result.errors);
    if (chosen.comeBack() && isTaken) {
        emit m_editor->colorsMoving(order);
        result = Operations::reorderPalettes(sprites, chosen.rows(dialog.isInAll()), order);
    }
    if (sprites) {
        sprites->endChange();
    }
    chosen.comeBack();  // reloading a sprite also brings its own palette into the grid
    finish(title, result);
}

void PaletteTools::ramp()
{
    const ChosenPalette chosen = comeForward();
    if (!chosen.isThere()) {
        return;
    }
    MediaResult result;
    {
        RampDialog dialog(chosen, m_services.window);
        if (dialog.exec() == QDialog::Accepted && chosen.isThere()) {
            result = Operations::fillRamp(chosen.sprites(), chosen.rows(dialog.isInAll()),
                                          chosen.first(), chosen.last(), dialog.space());
        }
    }
    finish(tr("Make a ramp"), result);
}

void PaletteTools::shiftHue()
{
    const ChosenPalette chosen = comeForward();
    if (!chosen.isThere()) {
        return;
    }
    MediaResult result;
    {
        HueDialog dialog(chosen, m_services.window);
        if (dialog.exec() == QDialog::Accepted && chosen.isThere()) {
            result = Operations::shiftHues(chosen.sprites(), chosen.rows(false),
                                           chosen.slotsOrAll(1), dialog.degrees());
        }
    }
    finish(tr("Shift hue"), result);
}

void PaletteTools::replace()
{
    const ChosenPalette chosen = comeForward();
    if (!chosen.isThere()) {
        return;
    }
    const QString title = tr("Replace colour");
    const RGBA before = chosen.colors()[chosen.first()];
    const auto wanted = Dialogs::instance()->chooseColor(title, toColor(before));
    if (!wanted || !chosen.isThere()) {
        return;
    }
    const RGBA now{quint8(wanted->red()), quint8(wanted->green()), quint8(wanted->blue()),
                   quint8(wanted->alpha())};
    const MediaResult result =
        Operations::replaceColor(chosen.sprites(), chosen.rows(true), before, now);
    finish(title, result, tr("%n slot(s) have the new colour.", nullptr, result.done));
}

void PaletteTools::countUses()
{
    const QPointer<PaletteTools> alive(this);
    const QStringList broken = m_usage->count();
    if (alive && !broken.isEmpty()) {
        Dialogs::instance()->error(tr("Count uses of colours"), broken.join(QLatin1Char('\n')));
    }
}

/// Shows the grid, so that the change is visible. The operation applies to the palette chosen
/// before; that no longer exists if the canvas shows another file.
ChosenPalette PaletteTools::comeForward() const
{
    const ChosenPalette chosen(m_editor);
    m_editor->bringForward();
    return chosen;
}

void PaletteTools::finish(const QString& title, const MediaResult& result, const QString& done)
{
    const QStringList lines = result.errors + result.warnings;
    if (!lines.isEmpty()) {
        Dialogs::instance()->error(title, lines.join(QLatin1Char('\n')));
    } else if (!done.isEmpty()) {
        m_services.status->showPassing(done);
    }
}

}  // namespace App
