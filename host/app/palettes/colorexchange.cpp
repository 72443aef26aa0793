#include "app/palettes/colorexchange.h"

#include "app/palettes/chosenpalette.h"
#include "app/palettes/familypaletteeditor.h"
#include "operations/media/mediaresult.h"
#include "operations/media/palettecolors.h"

#include <zorv/core/dialogs/dialogs.h>
#include <zorv/editors/palette/palettewidget.h>
#include <zorv/media/paletteobject.h>

#include <QClipboard>
#include <QDrag>
#include <QGuiApplication>
#include <QMimeData>
#include <QPixmap>

namespace App {

using Operations::PaletteEntries;
using Zorv::Dialogs;

namespace {

constexpr int DraggedSide = 16;

/// The entries of the grid, whether it shows a palette or not.
PaletteEntries entriesOf(const Zorv::PaletteWidget& grid, const bool* selection)
{
    PaletteEntries entries;
    for (int i = 0; i < 256; ++i) {
        if (selection[i]) {
            entries.colors.append(grid.palette()->color(quint8(i)));
            entries.places.append(quint8(i));
        }
    }
    return entries;
}

}  // namespace

ColorExchange::ColorExchange(FamilyPaletteEditor* editor, QObject* parent)
    : QObject(parent), m_editor(editor)
{
    connect(editor->view(), &Zorv::PaletteWidget::colorDraggedOut, this, &ColorExchange::drag);
}

CommandRows ColorExchange::commands()
{
    return {{Command::Copy, [this] { copy(); }, [this] { return canCopy(); }},
            {Command::Paste, [this] { paste(); }, [this] { return canPaste(); }}};
}

bool ColorExchange::canCopy() const
{
    return SelectedSlots::of(*m_editor).count > 0;
}

bool ColorExchange::canPaste() const
{
    return canCopy() && m_editor->currentPalette();
}

void ColorExchange::copy() const
{
    if (canCopy()) {
        const Zorv::PaletteWidget& grid = *m_editor->view();
        QGuiApplication::clipboard()->setMimeData(
            entriesOf(grid, grid.selection).toMime().release());
    }
}

void ColorExchange::paste() const
{
    if (!canPaste()) {
        return;
    }
    const PaletteEntries copied =
        PaletteEntries::fromMime(QGuiApplication::clipboard()->mimeData());
    const ChosenPalette chosen(m_editor);
    const QString title = tr("Paste colours");
    if (copied.colors.isEmpty()) {
        Dialogs::instance()->information(
            title,
            tr("There are no colours on the clipboard. Colours are copied from a palette, or "
               "as text: \"#rrggbb\", a line each."));
    } else if (chosen.isThere()) {
        const Operations::MediaResult result = Operations::placeColors(
            chosen.sprites(), chosen.row(), copied.placedIn(chosen.slotsOrAll(1)), title);
        if (!result.errors.isEmpty()) {
            Dialogs::instance()->error(title, result.errors.join(QLatin1Char('\n')));
        }
    }
}

/// Dragging a selected slot drags the whole selection. The grid may be destroyed before the drag
/// ends.
void ColorExchange::drag(int slot)
{
    Zorv::PaletteWidget* grid = m_editor->view();
    bool dragged[256] = {};
    const bool* selection = grid->selection;
    if (!selection[slot]) {
        dragged[slot] = true;
        selection = dragged;
    }
    const Zorv::RGBA color = grid->palette()->color(quint8(slot));
    QPixmap picture(DraggedSide, DraggedSide);
    picture.fill(QColor(color.r, color.g, color.b));
    auto* drag = new QDrag(grid);
    drag->setMimeData(entriesOf(*grid, selection).toMime().release());
    drag->setPixmap(picture);
    drag->exec(Qt::CopyAction);
}

}  // namespace App
