#include "app/paint/paintcommands.h"

#include "app/actions/actionregistry.h"
#include "app/paint/familyspriteeditor.h"
#include "app/paint/frameshine.h"
#include "app/paint/paintoptions.h"
#include "app/session/gamesession.h"
#include "app/session/unsavedwork.h"
#include "app/window/editorregistry.h"
#include "app/window/partlist.h"
#include "app/window/statusfields.h"
#include "app/window/windowservices.h"
#include "family/assets/spritecollection.h"

#include <zorv/animation/animationeditor.h>
#include <zorv/cache/palette.h>
#include <zorv/cache/palettes.h>
#include <zorv/code/codedoc/framecode.h>
#include <zorv/editors/palette/colorpalette.h>
#include <zorv/image/canvas/imagecanvas.h>
#include <zorv/image/canvas/imagelayers.h>
#include <zorv/image/imagerenderer.h>
#include <zorv/image/palettepreviews.h>
#include <zorv/image/spriteeditor.h>
#include <zorv/image/spriteworkspace.h>

#include <QAction>

namespace App {

using Zorv::PalettePreviews;
using Zorv::SpriteEditor;

namespace {

constexpr int ColourCount = 256;
constexpr int LargestFirstZoom = 8;

/// Keys that a person has in the hand with the mouse on the canvas. They are those of the canvas
/// alone: a text, a list and a field have other uses for letters.
const char* const canvasKeys[] = {
    "spr_tool_canvasmove", "spr_tool_selmove",      "spr_tool_rectsel",
    "spr_tool_freesel",    "spr_tool_picker",       "spr_tool_pen",
    "spr_tool_eraser",     "spr_tool_remap_pen",    "spr_tool_paintbucket",
    "paint_swap",          "paint_larger",          "paint_smaller",
    "paint_next_colour",   "paint_previous_colour", "paint_pan",
};

QVector<QRgb> tableOf(const Zorv::Palette& palette)
{
    Zorv::RGBA colours[ColourCount] = {};
    palette.toPalette(colours);
    QVector<QRgb> table;
    for (const Zorv::RGBA& each : colours) {
        table.append(qRgba(each.r, each.g, each.b, each.a));
    }
    return table;
}

}  // namespace

PaintCommands::PaintCommands(const WindowServices& services)
    : QObject(services.window), m_services(services),
      m_editor(new FamilySpriteEditor(services.mayRemove, this)),
      m_options(new PaintOptions(m_editor->renderer(), this)),
      m_animations(
          qobject_cast<Zorv::AnimationEditor*>(services.editors->byName(QStringLiteral("anim")))),
      m_shine(new FrameShine(m_editor, m_animations, this)), m_costumes(new PalettePreviews)
{
    m_costumes->setCanvas(m_editor->renderer()->canvas());
    connect(m_editor, &SpriteEditor::spriteShown, this, &PaintCommands::showCostumes);
    connect(m_editor, &SpriteEditor::spriteShown, this, &PaintCommands::fitFirst);
    connect(m_editor->colors(), &Zorv::ColorPalette::paletteChanged, m_costumes,
            &PalettePreviews::refresh);
    connect(m_costumes, &PalettePreviews::chosen, this, &PaintCommands::chooseCostume);
    connect(m_animations, &Zorv::AnimationEditor::shownChanged, this, &PaintCommands::followFrame);
}

// The canvas of the previews goes with the editor.
PaintCommands::~PaintCommands()
{
    m_costumes->setCanvas(nullptr);
    delete m_shine;
    delete m_editor;
}

QVector<ActionRow> PaintCommands::actions()
{
    const Members<PaintCommands> on(this);
    const std::function<bool()> always;
    const char* const area = "sprites";
    // clang-format off
    QVector<ActionRow> rows{
        {"paint_swap",            "paint.colours", QT_TRANSLATE_NOOP("App::Actions", "E&xchange colours"),      "X",     on(&PaintCommands::swapColours),    always, area},
        {"paint_previous_colour", "paint.colours", QT_TRANSLATE_NOOP("App::Actions", "&Previous colour"),       "[",     on(&PaintCommands::previousColour), always, area},
        {"paint_next_colour",     "paint.colours", QT_TRANSLATE_NOOP("App::Actions", "&Next colour"),           "]",     on(&PaintCommands::nextColour),     always, area},
        {"paint_larger",          "paint.colours", QT_TRANSLATE_NOOP("App::Actions", "La&rger brush"),          "+",     on(&PaintCommands::larger),         always, area},
        {"paint_smaller",         "paint.colours", QT_TRANSLATE_NOOP("App::Actions", "S&maller brush"),         "-",     on(&PaintCommands::smaller),        always, area},
        {"paint_pan",             "paint.colours", QT_TRANSLATE_NOOP("App::Actions", "M&ove picture"),          "Space", on(&PaintCommands::pan),            always, area},
    };
    rows += m_options->actions();
    rows.append({"paint_shine",   "paint.all",     QT_TRANSLATE_NOOP("App::Actions", "&Frames before and after"), {},    on(&PaintCommands::shine),          always, area, ActionRow::Switch});
    // clang-format on
    return rows;
}

void PaintCommands::actionsMade()
{
    QWidget* canvas = m_editor->spriteWorkspace()->widget();
    for (const char* name : canvasKeys) {
        QAction* action = m_services.actions->action(QLatin1String(name));
        action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
        canvas->addAction(action);
    }
    m_options->restore(m_services.actions);
}

/// The first picture is as large as there is room for; from then on the zoom is the person's.
void PaintCommands::fitFirst()
{
    const QSize view = m_editor->spriteWorkspace()->widget()->size();
    const QSize size = m_editor->renderer()->canvas()->size();
    if (m_isFitted || size.isEmpty() || m_editor->spriteIndex() < 0) {
        return;
    }
    m_isFitted = true;
    const int zoom = qMin(view.width() / size.width(), view.height() / size.height());
    m_editor->renderer()->canvas()->setZoomLevel(qBound(1, zoom, LargestFirstZoom));
}

void PaintCommands::showSprite(Family::SpriteCollection* sprites, int row)
{
    if (m_editor->showSprite(sprites, row)) {
        comeForward();
    }
}

void PaintCommands::comeForward()
{
    m_services.editors->activate(m_editor);
}

CommandRows PaintCommands::commands() const
{
    SpriteEditor* editor = m_editor;
    const auto hasCanvas = [editor] { return editor->renderer()->canvas()->layers()->count() > 0; };
    return {{Command::Undo, [editor] { editor->undo(); }, [editor] { return editor->canUndo(); },
             [editor] { return editor->undoTitle(); }},
            {Command::Redo, [editor] { editor->redo(); }, [editor] { return editor->canRedo(); },
             [editor] { return editor->redoTitle(); }},
            {Command::Cut, [editor] { editor->cut(); }, hasCanvas},
            {Command::Copy, [editor] { editor->copy(); }, hasCanvas},
            {Command::Paste, [editor] { editor->paste(); }, hasCanvas},
            {Command::Delete, [editor] { editor->clearSelected(); }, hasCanvas},
            {Command::SelectAll, [editor] { editor->selectAll(); }, hasCanvas},
            {Command::Save, [this] { const_cast<PaintCommands*>(this)->save(); },
             [this] { return canSave(); }}};
}

/// A file that has gone can be brought back.
bool PaintCommands::canSave() const
{
    return m_editor->file() && (m_editor->isModified() || isGone(m_editor->file()));
}

void PaintCommands::save()
{
    if (saveFiles({m_editor->file()})) {
        m_services.status->showPassing(
            tr("%1 is saved.").arg(m_services.session->shownPath(m_editor->file()->fileName())));
    }
    m_services.parts->gameChanged();
}

/// Frames may have been edited meanwhile.
void PaintCommands::updateState()
{
    const bool isInFront = m_editor->isActive();
    if (isInFront && !m_isInFront) {
        m_shine->update();
    }
    m_isInFront = isInFront;
}

void PaintCommands::reconfig()
{
    showCostumes();
}

void PaintCommands::followFrame()
{
    if (!m_animations->isPlaying()) {
        const Zorv::FrameCode* frame = m_animations->currentFrame();
        m_editor->followFrame(frame ? frame->sprite() : nullptr);
    }
}

QVector<PanelPlace> PaintCommands::places()
{
    return {PanelPlace::of(m_costumes)};
}

void PaintCommands::swapColours()
{
    Zorv::ColorPalette* colours = m_editor->colors();
    const unsigned char front = colours->foreground();
    colours->setForeground(colours->background());
    colours->setBackground(front);
}

void PaintCommands::stepColour(int step)
{
    Zorv::ColorPalette* colours = m_editor->colors();
    colours->setForeground(
        static_cast<unsigned char>((colours->foreground() + step + ColourCount) % ColourCount));
}

void PaintCommands::larger()
{
    m_editor->renderer()->keyPressed(Qt::Key_Plus, Qt::NoModifier);
}

void PaintCommands::smaller()
{
    m_editor->renderer()->keyPressed(Qt::Key_Minus, Qt::NoModifier);
}

/// Until the key is released, which the canvas hears of itself.
void PaintCommands::pan()
{
    m_editor->renderer()->keyPressed(Qt::Key_Space, Qt::NoModifier);
}

void PaintCommands::shine()
{
    m_shine->setOn(m_services.actions->action(QStringLiteral("paint_shine"))->isChecked());
}

void PaintCommands::showCostumes()
{
    const Zorv::Sprites* sprites = m_editor->sprites();
    const Zorv::Sprite* sprite = m_editor->sprite();
    QVector<PalettePreviews::Preview> previews;
    int own = -1;
    for (int i = 0; sprite && sprite->palette() && i < sprites->palettes()->count() &&
                    i < PalettePreviews::MaxCount;
         ++i) {
        const Zorv::Palette* palette = sprites->palettes()->palette(i);
        own = palette == sprite->palette() ? i : own;
        previews.append(
            {palette->property(QStringLiteral("Identifier")).toString(), tableOf(*palette)});
    }
    m_costumes->setPreviews(previews);
    m_costumes->setCurrentIndex(own);
}

/// To be looked at: the sprite keeps its palette.
void PaintCommands::chooseCostume(int index)
{
    const Zorv::Sprites* sprites = m_editor->sprites();
    const Zorv::Sprite* sprite = m_editor->sprite();
    const Zorv::Palette* palette = sprites ? sprites->palettes()->palette(index) : nullptr;
    if (!sprite || !palette || palette == sprite->palette()) {
        m_editor->previewColors(nullptr);
        return;
    }
    const QVector<QRgb> table = tableOf(*palette);
    m_editor->previewColors(&table);
}

}  // namespace App
