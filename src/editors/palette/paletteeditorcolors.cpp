#include "cache/palettes.h"
#include "cache/sprites.h"
#include "core/dialogs/dialogs.h"
#include "core/dialogs/failures_p.h"
#include "core/fileinput.h"
#include "core/interface.h"
#include "editors/palette/paletteeditor_p.h"
#include "editors/palette/remapdlg.h"
#include "media/paletteobject.h"

#include <QColor>

#include <algorithm>
#include <iterator>
#include <numeric>

namespace Zorv {

namespace {

/// What is preserved when a colour moves to another slot: the values of the setting "pal_move".
enum Move { Ask, PicturesInAll, PicturesInOne, Slots };

const QString MoveKey = QStringLiteral("pal_move");

/// Returns `Ask` if the user cancelled. The answer is stored in the setting.
Move askForMove(Interface* host)
{
    const int known = host->option(MoveKey).toInt();
    if (known > Ask && known <= Slots) {
        return Move(known);
    }
    const int choice = Dialogs::instance()->choose(
        PaletteEditor::tr("Move color"),
        PaletteEditor::tr("What stays as it is when a color moves to another slot?\nThe answer is "
                          "kept in the settings."),
        {PaletteEditor::tr("The pictures, in all palettes: pixels go with their color"),
         PaletteEditor::tr("The pictures, in this palette alone"),
         PaletteEditor::tr("The slots: pictures show the new order")},
        0);
    if (choice < 0) {
        return Ask;
    }
    host->setOption(MoveKey, choice + PicturesInAll);
    return Move(choice + PicturesInAll);
}

}  // namespace

/// Shows the panel, so that the user sees what is edited.
void PaletteEditorPrivate::comeForward()
{
    if (!editor->isActive()) {
        host->showExtraEditor(editor);
    }
    if (!editor->isActive()) {
        editor->activate();
    }
}

/// While a colour is being moved, colorMoved() does the work instead.
void PaletteEditorPrivate::changed()
{
    if (inhibit > 0 || !palette || isPreview || view->isMoving()) {
        return;
    }
    {
        const Inhibit guard(this);
        RGBA colors[256];
        view->palette()->toPalette(colors);
        comeForward();
        palette->setColors(colors, Palette::KeepPixels);
        view->flatten();
    }
    emit editor->currentPaletteChanged();
}

void PaletteEditorPrivate::colorMoved(unsigned short src, unsigned short dst)
{
    // A colour dropped on its own slot has not moved.
    if (inhibit > 0 || !palette || isPreview || src == dst) {
        return;
    }
    const ShownPalette shown(this);
    RGBA colors[256];
    view->palette()->toPalette(colors);
    const Move move = askForMove(host);
    selPosChanged(row());  // unsaved painting uses the file's colours, so show them
    if (move != Ask && shown.isThere()) {
        comeForward();
        if (move == Slots) {
            const Inhibit guard(this);
            palette->setColors(colors, Palette::KeepPixels);
        } else {
            keepPictures(move == PicturesInAll, src, dst);
        }
        selPosChanged(row());
    }
}

/// Remaps the pixels of the file, so pending painting must be flushed into it first. Flushing shows
/// the painted sprite's palette in the grid, hence comeBack().
void PaletteEditorPrivate::keepPictures(bool inAll, unsigned short src, unsigned short dst)
{
    const ShownPalette shown(this);
    const QPointer<Sprites> changed = sprites;
    const QString title = PaletteEditor::tr("Move color");
    QStringList errors;
    changed->beginChange(title);
    const bool isTaken = FileInput::take(changed, &errors);
    if (shown.comeBack() && isTaken) {
        const Inhibit guard(this);
        QVector<int> rows(inAll ? count() : 1, row());
        if (inAll) {
            std::iota(rows.begin(), rows.end(), 0);
        }
        const PaletteOrder order = movedOrder(quint8(src), quint8(dst));
        emit editor->colorsMoving(order);
        editor->reorderColors(rows, order);
    }
    if (changed) {
        changed->endChange();
    }
    shown.comeBack();  // reloading a sprite also shows its own palette
    tellFailures(title, errors);
}

void PaletteEditorPrivate::colorDblClicked(unsigned short)
{
    setColor();
}

/// Undo works on the whole file: it has only one history.
void PaletteEditorPrivate::undo()
{
    if (bringForward() && sprites) {
        sprites->undo();
    }
}

void PaletteEditorPrivate::redo()
{
    if (bringForward() && sprites) {
        sprites->redo();
    }
}

void PaletteEditorPrivate::switchColor()
{
    if (bringForward() && hasRow() && view) {
        view->palette()->switchColors(view->selection, false);
    }
}

void PaletteEditorPrivate::setColor()
{
    if (!bringForward() || !hasRow() || !view ||
        std::none_of(std::begin(view->selection), std::end(view->selection),
                     [](bool isSelected) { return isSelected; })) {
        return;
    }
    const ShownPalette shown(this);
    const RGBA first = view->palette()->color(quint8(view->firstSelection()));
    const auto color = Dialogs::instance()->chooseColor(PaletteEditor::tr("Color"),
                                                        QColor(first.r, first.g, first.b, first.a));
    if (color && shown.isThere()) {
        view->palette()->setColor(view->selection, {quint8(color->red()), quint8(color->green()),
                                                    quint8(color->blue()), quint8(color->alpha())});
    }
}

void PaletteEditorPrivate::remap()
{
    if (remapDlg) {
        remapDlg->show();
        remapDlg->raise();
        remapDlg->activateWindow();
    }
}

void PaletteEditorPrivate::beginRemap(const QString& title)
{
    remapStep = palettes;
    if (palettes) {
        palettes->beginUpdate(title);
    }
}

void PaletteEditorPrivate::endRemap()
{
    if (remapStep) {
        remapStep->endUpdate();
    }
    remapStep = nullptr;
    editor->remapChanged();
}

void PaletteEditorPrivate::remapChanged(const QModelIndex&, const QModelIndex&)
{
    editor->remapChanged();
}

}  // namespace Zorv
