#pragma once

#include "editors/framework/extraeditor.h"
#include "media/colortypes.h"
#include "media/tools/paletteorder.h"
#include "zorv_export.h"

#include <QList>
#include <QVariant>

#include <memory>

namespace Zorv {

class Palette;
class PaletteEditorPrivate;
class Palettes;
class PaletteWidget;

/// The side panel "pal": the palettes of a sprite collection, one at a time, as a grid of colours.
///
/// Palettes come from files and go to files, are stepped through, edited slot by slot, and given to
/// sprites. Every change is one step of undo in the file of the sprites, which is also what the
/// tools "pal_undo" and "pal_redo" step through. The current palette is the row of the collection
/// that `Palettes::currentIndex` tells.
///
/// It publishes the tools "pal_..." and the grid "pal_view" to the installed host, in the areas
/// "sprites" and "animations", and is derived from for what only a host can tell or do.
/// A right click in the grid is that of the colours; with Ctrl it opens the menu of the tools.
/// Main thread only.
class ZORV_EXPORT PaletteEditor : public ExtraEditor
{
    Q_OBJECT

public:
    explicit PaletteEditor(QObject* parent = nullptr);
    ~PaletteEditor() override;

    /// "pal".
    QString name() const override;
    QString displayName() const override;

    /// The grid, see `view()`.
    QWidget* widget() const override;

    /// Takes up where the collection is now.
    void activate() override;
    void retranslate() override;

    /// @name For a host to define
    /// @{

    /// Gives the identifier of a new palette. False if the person gave up.
    virtual bool paletteIdentifier(QVariant* id) = 0;

    /// Gives one identifier for each of the files that are about to be added, in their order, and
    /// whether the order of their colours is to be reversed. With another number none is added.
    virtual void paletteIdentifiers(const QStringList& files, QList<QVariant>* ids,
                                    bool* reversed) = 0;

    /// Puts the colours of the palettes of some rows in another order. The pixels of all sprites
    /// that use one of them go along, so that pictures stay as they are. A step of undo is open
    /// meanwhile: what the person has to be told waits for its end.
    virtual void reorderColors(const QVector<int>& rows, const PaletteOrder& order) = 0;

    /// Another palette is current; null for none. Nothing as it stands here.
    virtual void paletteSelected(Palette* palette);

    /// Palettes mean other things to sprites than before. As it stands here the editor in front,
    /// of sprites or animations, shows them again.
    virtual void remapChanged();
    /// @}

    /// The collection, or null.
    Palettes* palettes() const;

    /// Takes up another collection; null for none, which leaves no palette. Not owned, and may die.
    void setPalettes(Palettes* palettes);

    /// The palette in the grid; null if there is none, or `showColors()` shows others. Good until
    /// the collection signals a change.
    Palette* currentPalette() const;

    /// Shows a palette of the collection; null for none.
    void setCurrentPalette(Palette* palette);

    /// Takes colours in: for the palette of an identifier that the host is asked for, or as a new
    /// one behind the others.
    void setPalette(const RGBA (&colors)[256]);

    /// Shows colours that are of no palette, to be chosen from but not to be edited.
    void showColors(const RGBA (&colors)[256]);

    /// Shows the current palette in other colours, for a dialog that is about to change it. The
    /// palette stays, nothing can be edited meanwhile, and showing any palette ends it.
    /// Null shows the palette as it is again. Nothing without a current palette.
    void previewColors(const RGBA* colors);
    bool isPreviewing() const;

    /// True if an edit in the grid would reach a palette.
    bool canChangeFieldValue() const;

    /// Brings the editor "sprites" to the front.
    void switchToSprites();

    /// The same for a tool that is about to change the current palette, which stays the current one
    /// whatever palette the canvas brings along. False, and the person is told, if the canvas keeps
    /// work of another file: the palettes are those of that one then.
    bool bringForward();

    /// The grid; null if it has gone with the host's window.
    PaletteWidget* view() const;

signals:
    /// There is a palette to work on.
    void enabled(bool isEnabled);

    /// Another palette is current, or has other colours.
    void currentPaletteChanged();

    /// Colours are about to change places, and pixels with them. A host that has tools for that
    /// besides `reorderColors()` emits it, too. For who has pixels that are in no sprite, such as
    /// layers.
    void colorsMoving(const Zorv::PaletteOrder& order);

private:
    friend class PaletteEditorPrivate;
    std::unique_ptr<PaletteEditorPrivate> d;
};

}  // namespace Zorv
