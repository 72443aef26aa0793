#include "app/paint/paintcommands.h"

#include "app/actions/actionregistry.h"
#include "app/paint/costumes.h"
#include "app/paint/familyspriteeditor.h"
#include "app/paint/firstzoom.h"
#include "app/paint/frameshine.h"
#include "app/paint/paintoptions.h"
#include "app/paint/panswitch.h"
#include "app/session/gamesession.h"
#include "app/window/editorregistry.h"
#include "app/window/filesaving.h"
#include "app/window/windowservices.h"
#include "family/assets/spritecollection.h"

#include <zorv/animation/animationeditor.h>
#include <zorv/code/codedoc/framecode.h>
#include <zorv/editors/palette/colorpalette.h>
#include <zorv/image/canvas/imagecanvas.h>
#include <zorv/image/canvas/imagelayers.h>
#include <zorv/image/imagerenderer.h>
#include <zorv/image/palettepreviews.h>
#include <zorv/image/spriteeditor.h>
#include <zorv/image/spriteworkspace.h>
#include <zorv/image/tools/strokeoptions.h>

#include <QAction>

namespace App {

using Zorv::ImageCanvas;
using Zorv::SpriteEditor;

namespace {

constexpr int ColourCount = 256;

/// One-key shortcuts for use with the mouse on the canvas. They only work there: texts, lists and
/// fields need the letters themselves.
const char* const canvasKeys[] = {
    "spr_tool_canvasmove", "spr_tool_selmove",      "spr_tool_rectsel",
    "spr_tool_freesel",    "spr_tool_picker",       "spr_tool_pen",
    "spr_tool_eraser",     "spr_tool_remap_pen",    "spr_tool_paintbucket",
    "paint_swap",          "paint_larger",          "paint_smaller",
    "paint_next_colour",   "paint_previous_colour", "paint_pan",
};

}  // namespace

PaintCommands::PaintCommands(const WindowServices& services, Zorv::PaletteEditor* palettes)
    : QObject(services.window), m_services(services),
      m_editor(new FamilySpriteEditor(services, palettes, this)),
      m_animations(
          qobject_cast<Zorv::AnimationEditor*>(services.editors->byName(QStringLiteral("anim")))),
      m_shine(new FrameShine(m_editor, m_animations, this)),
      m_options(new PaintOptions(m_editor->renderer(), m_shine, this)),
      m_costumes(new Costumes(m_editor, this))
{
    m_editor->renderer()->setOption(Zorv::ImageRenderer::FollowOriginal, true);
    new FirstZoom(m_editor, this);
    connect(m_animations, &Zorv::AnimationEditor::shownChanged, this, &PaintCommands::followFrame);
}

// Destroy what uses the editor before the editor.
PaintCommands::~PaintCommands()
{
    delete m_pan;
    delete m_costumes;
    delete m_options;
    delete m_shine;
    delete m_editor;
}

Zorv::PalettePreviews* PaintCommands::costumes() const
{
    return m_costumes->panel();
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
        {"paint_pan",             "paint.colours", QT_TRANSLATE_NOOP("App::Actions", "M&ove picture"),          "Space", on(&PaintCommands::pan),            always, area, ActionRow::Switch},
    };
    rows += m_options->actions();
    rows += QVector<ActionRow>{
        {"paint_symmetry_center", "paint.all",     QT_TRANSLATE_NOOP("App::Actions", "Symmetry a&bout the middle"), {},   on(&PaintCommands::centerSymmetry), always, area},
        {"paint_to_indexed",      "spr.image",     QT_TRANSLATE_NOOP("App::Actions", "Convert to &indexed colour"), {},   on(&PaintCommands::toIndexed),      on(&PaintCommands::isTrueColour), area},
        {"paint_to_true",         "spr.image",     QT_TRANSLATE_NOOP("App::Actions", "Convert to &true colour"),    {},   on(&PaintCommands::toTrueColour),   on(&PaintCommands::isIndexed), area},
    };
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
    m_pan = new PanSwitch(m_services.actions->action(QStringLiteral("paint_pan")),
                          m_editor->renderer(), m_editor->spriteWorkspace(), this);
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

/// A file missing on disk can be written again.
bool PaintCommands::canSave() const
{
    return m_editor->file() && (m_editor->isModified() || isGone(m_editor->file()));
}

void PaintCommands::save()
{
    saveFile(m_services, m_editor->file());
}

/// The frames may have been edited while the canvas was not in front.
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
    m_costumes->update();
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
    return {PanelPlace::of(m_costumes->panel())};
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

void PaintCommands::pan()
{
    m_pan->run();
}

void PaintCommands::centerSymmetry()
{
    m_editor->renderer()->strokeOptions()->centerSymmetryAxis();
}

bool PaintCommands::isIndexed() const
{
    const ImageCanvas* canvas = m_editor->renderer()->canvas();
    return canvas->layers()->count() > 0 && canvas->format() == ImageCanvas::IndexedFormat;
}

bool PaintCommands::isTrueColour() const
{
    const ImageCanvas* canvas = m_editor->renderer()->canvas();
    return canvas->layers()->count() > 0 && canvas->format() == ImageCanvas::RGBAFormat;
}

/// Ends the colour preview: it must not affect the converted pixels.
void PaintCommands::toIndexed()
{
    m_editor->previewColors(nullptr);
    m_editor->renderer()->canvas()->convertTo(ImageCanvas::IndexedFormat);
}

void PaintCommands::toTrueColour()
{
    m_editor->previewColors(nullptr);
    m_editor->renderer()->canvas()->convertTo(ImageCanvas::RGBAFormat);
}

}  // namespace App
