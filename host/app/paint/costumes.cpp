#include "app/paint/costumes.h"

#include "family/assets/spritecollection.h"
#include "operations/media/mediaresult.h"
#include "operations/media/palettecolors.h"

#include <zorv/cache/palette.h>
#include <zorv/cache/palettes.h>
#include <zorv/cache/sprite.h>
#include <zorv/cache/sprites.h>
#include <zorv/core/dialogs/dialogs.h>
#include <zorv/editors/palette/colorpalette.h>
#include <zorv/editors/palette/paletteeditor.h>
#include <zorv/image/imagerenderer.h>
#include <zorv/image/palettepreviews.h>
#include <zorv/image/spriteeditor.h>

#include <QDropEvent>
#include <QMimeData>

#include <algorithm>

namespace App {

using Zorv::Palette;
using Zorv::PalettePreviews;
using Zorv::SpriteEditor;

namespace {

constexpr int ColourCount = 256;

/// Missing palette entries are opaque black, as on the canvas.
QVector<QRgb> tableOf(const Palette& palette)
{
    Zorv::RGBA colours[ColourCount];
    std::fill(std::begin(colours), std::end(colours), Zorv::RGBA{0, 0, 0, 255});
    palette.toPalette(colours);
    QVector<QRgb> table;
    for (const Zorv::RGBA& each : colours) {
        table.append(qRgba(each.r, each.g, each.b, each.a));
    }
    return table;
}

/// The palettes to show for an indexed sprite; none for a true-colour sprite.
QVector<Palette*> palettesFor(const SpriteEditor& editor)
{
    QVector<Palette*> shown;
    const Zorv::Sprite* sprite = editor.sprite();
    Palette* own = sprite ? sprite->palette() : nullptr;
    const Zorv::Palettes* all = own ? own->owner() : nullptr;
    const int count = all ? qMin(all->count(), PalettePreviews::MaxCount) : 0;
    for (int i = 0; i < count; ++i) {
        shown.append(all->palette(i));
    }
    if (count > 0 && !shown.contains(own)) {
        shown.last() = own;
    }
    return shown;
}

}  // namespace

Costumes::Costumes(SpriteEditor* editor, QObject* parent)
    : QObject(parent), m_editor(editor), m_panel(new PalettePreviews)
{
    m_panel->setCanvas(editor->renderer()->canvas());
    connect(editor, &SpriteEditor::spriteShown, this, &Costumes::update);
    connect(editor, &SpriteEditor::colorsShown, this, &Costumes::update);
    connect(editor->colors(), &Zorv::ColorPalette::paletteChanged, m_panel,
            &PalettePreviews::refresh);
    m_panel->setAcceptDrops(true);
    m_panel->installEventFilter(this);
    connect(m_panel, &PalettePreviews::chosen, this, &Costumes::choose);
}

// The canvas is destroyed with the editor.
Costumes::~Costumes()
{
    m_panel->setCanvas(nullptr);
}

void Costumes::update()
{
    m_palettes = palettesFor(*m_editor);
    QVector<PalettePreviews::Preview> previews;
    for (const Palette* palette : qAsConst(m_palettes)) {
        previews.append(
            {palette->property(QStringLiteral("Identifier")).toString(), tableOf(*palette)});
    }
    m_panel->setPreviews(previews);
    m_panel->setCurrentIndex(m_palettes.indexOf(m_editor->paletteEditor()->currentPalette()));
}

/// Makes a palette current, if the file still has it and the palette panel still shows this file.
void Costumes::choose(int index)
{
    Zorv::PaletteEditor* panel = m_editor->paletteEditor();
    if (isShown(index) && m_palettes[index]->owner() == panel->palettes()) {
        panel->setCurrentPalette(m_palettes[index]);
    } else {
        update();
    }
}

bool Costumes::isShown(int index) const
{
    return palettesFor(*m_editor).contains(m_palettes.value(index));
}

/// Only handles the panel's events. It checks the type first, because the last events arrive while
/// the panel is being destroyed.
bool Costumes::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
    case QEvent::DragEnter:
    case QEvent::DragMove:
    case QEvent::Drop:
        return takeDrag(static_cast<QDropEvent*>(event));
    default:
        return QObject::eventFilter(watched, event);
    }
}

/// A drag that has just entered is accepted here; its position is checked while it moves.
bool Costumes::takeDrag(QDropEvent* event)
{
    const auto entries = Operations::PaletteEntries::fromMime(event->mimeData());
    const int index = m_panel->indexAt(event->pos());
    const bool isTaken =
        !entries.places.isEmpty() && (event->type() == QEvent::DragEnter || isShown(index));
    event->setAccepted(isTaken);
    if (isTaken) {
        event->setDropAction(Qt::CopyAction);
    }
    if (isTaken && event->type() == QEvent::Drop) {
        takeColours(*m_palettes[index], entries);
    }
    return true;
}

/// Messages are shown after the drop, because the source of the drag waits for its end.
void Costumes::takeColours(const Palette& palette, const Operations::PaletteEntries& entries)
{
    auto* sprites = static_cast<Family::SpriteCollection*>(palette.owner()->sprites());
    const QString title = tr("Drop colours");
    const QStringList errors =
        Operations::placeColors(sprites, int(palette.index()), entries, title).errors;
    if (!errors.isEmpty()) {
        QMetaObject::invokeMethod(
            this,
            [title, errors] {
                Zorv::Dialogs::instance()->error(title, errors.join(QLatin1Char('\n')));
            },
            Qt::QueuedConnection);
    }
}

}  // namespace App
