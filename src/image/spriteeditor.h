#pragma once

#include "editors/framework/fileeditor.h"
#include "image/canvas/canvasrecord.h"
#include "zorv_export.h"

#include <QImage>
#include <QStringList>
#include <QVariant>
#include <QVector>

#include <memory>

namespace Zorv {

class ColorPalette;
class ImageRenderer;
class PaletteEditor;
class SpriteEditorPrivate;
class Sprite;
class Sprites;
class SpriteWorkspace;

/// The editor "spr": one sprite of a project on a canvas, with tools, layers and its palette.
///
/// The canvas is a working copy. "spr_saveimg" (`saveImage()`) flattens the visible layers into the
/// sprite and stores the canvas axis with it, as one undo step of the file; the sprite's palette
/// stays. Until then a changed canvas is a `FileInput` of its file. Before another sprite is shown
/// the user is asked to save, to discard (which undoes the steps on the canvas), or to stay. If the
/// sprite changes elsewhere, an unchanged canvas follows and a changed one stays as it is.
/// Operations on the stored sprite save the canvas into it first.
///
/// While the editor is in front, the organizer of the host (side panel 0) shows the sprites.
///
/// It publishes the tools "spr_..." in the area "sprites"; tools that are also useful beside the
/// stage are in "animations", too. Main thread only.
class ZORV_EXPORT SpriteEditor : public FileEditor
{
    Q_OBJECT

public:
    /// `palettes` edits the palettes of the same sprites; the canvas is painted in its current one.
    /// The editor sets its collection. Not owned; it must outlive the editor.
    explicit SpriteEditor(PaletteEditor* palettes, QObject* parent = nullptr);
    ~SpriteEditor() override;

    /// @name The editor
    /// @{

    /// "editor_spr"; disabled while there is no collection.
    QAction* action() const override;

    /// "spr".
    QString name() const override;

    /// 1 while the collection has no file.
    int canEditFileType() const override;
    QStringList areas() const override;

    /// A `SpriteWorkspace`.
    Workspace* workspace() const override;

    void activate() override;
    void deactivate() override;

    /// Reads the options "back_start", "back_end" and "undo_megabytes": the memory limit of the
    /// canvas history, `ImageUndoStack::DefaultBudget` if not set.
    void reconfig() override;
    void retranslate() override;

    /// Switches to the sprites of the project; null for none. While the canvas has changes it stays
    /// and the switch waits until it has none. Meanwhile `paletteEditor()` shows the palettes of
    /// the new project, unless this editor is in front.
    void setProject(Project* project) override;

    /// Drops its sprites and whatever is on the canvas.
    void projectAboutToClose(Project* project) override;

    /// Shows the sprite at row `a`.
    void navigateTo(const QString& name, unsigned a, unsigned b, unsigned c) override;

    /// The file of the sprites being edited, or null.
    ProjectFile* file() const override;

    /// Also true while the canvas has changes.
    bool isModified() const override;

    /// Asks whether to save or discard the canvas.
    bool canDiscardInput() const override;

    /// Undoes on the canvas; when the canvas has no more steps, in the file.
    void undo() override;
    void redo() override;

    /// Whether there is such a step, and its title in the user's language.
    bool canUndo() const;
    bool canRedo() const;
    QString undoTitle() const;
    QString redoTitle() const;

    /// These work on the selected pixels of the active layer, see `ImageClipboard`. Pasting adds a
    /// layer; without a canvas it does nothing.
    void cut() override;
    void copy() override;
    void paste() override;

    /// Sets the selected pixels of the active layer to the background. One undo step.
    void clearSelected();

    void selectAll() override;

    /// Shows the next sprite with this "Identifier"; says so if there is none.
    void find(const QString& text, unsigned flags) override;

    /// Does nothing: sprites have no text.
    void replace(const QString& text, const QString& with, unsigned flags, bool all) override;
    /// @}

    /// @name Its parts, which live as long as the editor
    /// @{
    SpriteWorkspace* spriteWorkspace() const;

    /// The canvas with its view and tools.
    ImageRenderer* renderer() const;
    ColorPalette* colors() const;

    /// The one given to the constructor.
    PaletteEditor* paletteEditor() const;
    /// @}

    Sprites* sprites() const;

    /// The sprite on the canvas, or null. Valid until the collection signals a change.
    Sprite* sprite() const;

    /// The row of that sprite; -1 for none.
    int spriteIndex() const;

    /// Shows a sprite. If the canvas has changes, asks first and returns false if the user stays.
    /// True if the sprite is already shown. Does not bring the editor to the front.
    bool showSprite(Sprites* sprites, int index);

    /// Call when the frame being edited shows another sprite; null for none. With "spr_frame_spr"
    /// on, it is shown if it differs from the last call, unless the canvas has changes.
    void followFrame(const Sprite* sprite);

    /// Puts an image on the canvas as its only layer, and clears the history.
    void setImage(const QImage& image, const QString& name);

    /// True if the canvas differs from the sprite.
    bool isCanvasModified() const;

    /// The whole canvas except its history, in the colours of the sprite.
    CanvasRecord canvasRecord() const;

    /// Shows the canvas in colours that belong to no palette; null returns to the sprite's own.
    /// Pixels do not change, and saving uses the sprite's own colours.
    void previewColors(const QVector<QRgb>* colors);

    /// True while the canvas shows other colours than the sprite's: from `previewColors()` or from
    /// another current palette of `paletteEditor()`. Operations that need the sprite's own colours,
    /// such as saving, cropping and pasting, end the preview. A change of its palette does, too.
    bool isPreviewing() const;

    /// Adds a sprite for each image file, like "spr_add": behind the other sprites of the file that
    /// is visible (on the canvas or the stage), as one undo step. First asks whether to crop
    /// transparent edges. Files are read on worker threads with a progress display; files that
    /// could not be read are reported at the end.
    void addFiles(const QStringList& files);

    /// Adds image files that are dropped on a widget.
    void takeDropsOn(QWidget* widget);

public slots:
    /// Saves the canvas into the sprite. Does nothing without a sprite or without changes.
    void saveImage();

signals:
    /// The canvas shows another sprite or none, or the pixels of the sprite were reloaded.
    void spriteShown();

    /// The canvas is shown in other colours: a preview, or the sprite's own, which may have
    /// changed.
    void colorsShown();

protected:
    /// Image files are about to be added. A host that asks more than whether to crop overrides this
    /// and returns true if it added them or the user cancelled; the editor then shows what was
    /// added. The default returns false.
    virtual bool takeFiles(Sprites* into, const QStringList& files);

    /// Provides an identifier for each image file about to be added, in the same order. If their
    /// number differs, `into`, which receives the sprites, numbers them itself. The default
    /// provides none.
    virtual void newIdentifiers(const Sprites& into, const QStringList& files,
                                QList<QVariant>* identifiers);

    /// The places that show the current sprite, one line each, for its properties dialog. Returns
    /// false if they are unknown, as by default.
    virtual bool spriteUses(QStringList* places) const;

    /// Called before the current sprite is deleted, after the question of "confirm_delete". False
    /// keeps the sprite: for a host that knows what refers to it. The default returns true.
    virtual bool mayDeleteSprite();

private:
    friend class SpriteEditorPrivate;
    std::unique_ptr<SpriteEditorPrivate> d;
};

}  // namespace Zorv
