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

/// What stays as it is when a colour goes to another slot: the values of the setting "pal_move".
enum Move { Ask, PicturesInAll, PicturesInOne, Slots };

const QString MoveKey = QStringLiteral("pal_move");

/// `Ask` if the person gave up. The answer is a setting from then on.
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

/// Edits of a hidden panel are edits of something that is not seen.
void PaletteEditorPrivate::comeForward()
{
    if (!editor->isActive()) {
        host->showExtraEditor(editor);
    }
    if (!editor->isActive()) {
        editor->activate();
    }
}

/// The grid has the colours of a move before `colorMoved()` tells of it.
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
    // A colour that comes back to its own slot has not moved.
    if (inhibit > 0 || !palette || isPreview || src == dst) {
        return;
    }
    const ShownPalette shown(this);
    RGBA colors[256];
    view->palette()->toPalette(colors);
    const Move move = askForMove(host);
    selPosChanged(row());  // work beside the file is in the colours that the file has
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

/// Pixels of the file are mapped, and so have to be all in the file. What is painted gets there in
/// the colours of its sprite, which come into the grid for that.
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
    shown.comeBack();  // a sprite that is read anew has its own come, too
    tellFailures(title, errors);
}

void PaletteEditorPrivate::colorDblClicked(unsigned short)
{
    setColor();
}

/// Files have one history.
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
