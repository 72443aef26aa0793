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

/// The side panel "pal": shows the palettes of a sprite collection, one at a time, as a colour
/// grid.
///
/// It loads and saves palette files, steps through palettes, edits their slots, and assigns
/// palettes to sprites. Every change is one undo step in the sprite file; the tools "pal_undo" and
/// "pal_redo" use the same history. The current palette is the row `Palettes::currentIndex` of the
/// collection.
///
/// It publishes the tools "pal_..." and the grid "pal_view" to the installed host, in the areas
/// "sprites" and "animations". Hosts derive from it to add what only they know. A right click in
/// the grid chooses a colour; Ctrl with a right click opens the tools menu. Main thread only.
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

    /// Shows the collection's current palette.
    void activate() override;
    void retranslate() override;

    /// @name For a host to define
    /// @{

    /// Returns the identifier for a new palette. False if the user cancelled.
    virtual bool paletteIdentifier(QVariant* id) = 0;

    /// Returns one identifier per file to be added, in their order, and whether to reverse the
    /// colour order. With another number of identifiers nothing is added.
    virtual void paletteIdentifiers(const QStringList& files, QList<QVariant>* ids,
                                    bool* reversed) = 0;

    /// Reorders the colours of the palettes in some rows. Must remap the pixels of all sprites that
    /// use one of them, so that the pictures look the same. An undo step is open during the call:
    /// show messages to the user only after it ends.
    virtual void reorderColors(const QVector<int>& rows, const PaletteOrder& order) = 0;

    /// Another palette is current; null for none. The default does nothing.
    virtual void paletteSelected(Palette* palette);

    /// The palette remapping of sprites has changed. By default the active editor, of sprites or
    /// animations, repaints them.
    virtual void remapChanged();
    /// @}

    /// The collection, or null.
    Palettes* palettes() const;

    /// Switches to another collection; null for none, which leaves no palette. Not owned, and may
    /// die.
    void setPalettes(Palettes* palettes);

    /// The palette in the grid; null if there is none, or after `showColors()`. Valid until the
    /// collection signals a change.
    Palette* currentPalette() const;

    /// Shows a palette of the collection; null for none.
    void setCurrentPalette(Palette* palette);

    /// Imports colours. Asks the host for an identifier, and gives the colours to the palette with
    /// it, or to a new palette at the end.
    void setPalette(const RGBA (&colors)[256]);

    /// Shows colours that belong to no palette. They can be picked but not edited.
    void showColors(const RGBA (&colors)[256]);

    /// Shows the current palette with other colours, for a dialog that is about to change it. The
    /// palette does not change, and nothing can be edited meanwhile. Showing any palette ends the
    /// preview; null shows the palette's own colours again. Has no effect without a current
    /// palette.
    void previewColors(const RGBA* colors);
    bool isPreviewing() const;

    /// True if an edit in the grid would change a palette.
    bool canChangeFieldValue() const;

    /// Brings the editor "sprites" to the front.
    void switchToSprites();

    /// `switchToSprites()` for a tool that is about to change the current palette. The palette
    /// stays current, even if the canvas brings its own. Returns false and informs the user if the
    /// canvas keeps unsaved work of another file: then the palettes are those of that file.
    bool bringForward();

    /// The grid; null once it was deleted with the host's window.
    PaletteWidget* view() const;

signals:
    /// Whether there is a palette to work on.
    void enabled(bool isEnabled);

    /// Another palette is current, or the current one has other colours.
    void currentPaletteChanged();

    /// Colours, and pixels with them, are about to be reordered. A host with tools for that besides
    /// `reorderColors()` emits it too. For receivers with pixels outside of sprites, such as
    /// layers.
    void colorsMoving(const Zorv::PaletteOrder& order);

private:
    friend class PaletteEditorPrivate;
    std::unique_ptr<PaletteEditorPrivate> d;
};

}  // namespace Zorv
