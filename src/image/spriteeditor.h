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
/// The canvas is a copy. "spr_saveimg" (`saveImage()`) puts all visible layers, as one picture,
/// and the axis of the canvas into the sprite, as one step of undo of its file; its palette stays.
/// Until then a changed canvas is a `FileInput` of its file, and whatever shows another sprite asks
/// the person first: to save it, to discard it, which takes its steps back, or to stay.
/// If the sprite is changed elsewhere, a canvas without changes follows, and one with changes
/// stays as it is. What is done to the stored sprite takes the canvas in first.
///
/// While it is in front the organizer of the host, its side panel 0, shows the sprites.
///
/// It publishes the tools "spr_...", in the area "sprites"; those that are of use beside the stage
/// in "animations", too.
/// Main thread only.
class ZORV_EXPORT SpriteEditor : public FileEditor
{
    Q_OBJECT

public:
    /// The palettes of the same sprites, which are painted in their current one; the editor tells
    /// them which collection that is. Not owned, and outlives the editor.
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

    /// Reads "back_start" and "back_end", and "undo_megabytes", what the history of the canvas may
    /// take; none is `ImageUndoStack::DefaultBudget`.
    void reconfig() override;
    void retranslate() override;

    /// Takes up the sprites of the project; null for none. While the canvas has changes it stays,
    /// and they are taken up when it has none; the palettes of `paletteEditor()` are those of the
    /// project meanwhile, unless this editor is in front.
    void setProject(Project* project) override;

    /// Lets go of its sprites, with what is on the canvas.
    void projectAboutToClose(Project* project) override;

    /// Shows the sprite of a row, `a`.
    void navigateTo(const QString& name, unsigned a, unsigned b, unsigned c) override;

    /// The sprites in work, or null.
    ProjectFile* file() const override;

    /// True also while the canvas has changes.
    bool isModified() const override;

    /// Asks to save or discard what is on the canvas.
    bool canDiscardInput() const override;

    /// Of the canvas, and where it has no more steps, of the file.
    void undo() override;
    void redo() override;

    /// Whether there is such a step, and its title in the person's language.
    bool canUndo() const;
    bool canRedo() const;
    QString undoTitle() const;
    QString redoTitle() const;

    /// Of the selected pixels of the active layer, see `ImageClipboard`. What is pasted becomes a
    /// layer, on the canvas or, without one, nothing.
    void cut() override;
    void copy() override;
    void paste() override;

    /// Sets the selected pixels of the active layer to the background. One step of undo.
    void clearSelected();

    void selectAll() override;

    /// Shows the next sprite with this "Identifier"; tells if there is none.
    void find(const QString& text, unsigned flags) override;

    /// Nothing: sprites have no text.
    void replace(const QString& text, const QString& with, unsigned flags, bool all) override;
    /// @}

    /// @name Its parts, which go with it
    /// @{
    SpriteWorkspace* spriteWorkspace() const;

    /// The canvas with its view and tools.
    ImageRenderer* renderer() const;
    ColorPalette* colors() const;

    /// That of the constructor.
    PaletteEditor* paletteEditor() const;
    /// @}

    Sprites* sprites() const;

    /// The sprite on the canvas, or null. Good until the collection signals a change.
    Sprite* sprite() const;

    /// Its row; -1 for none.
    int spriteIndex() const;

    /// Shows a sprite, after a question if the canvas has changes. False if the person keeps what
    /// is there; true for the sprite that is there already. The editor is not brought forward.
    bool showSprite(Sprites* sprites, int index);

    /// The frame in work shows this sprite; null for none. With "spr_frame_spr" it comes onto the
    /// canvas, once for each other sprite that is told, unless the canvas has changes.
    void followFrame(const Sprite* sprite);

    /// Puts an image on the canvas, as its only layer, and forgets the history.
    void setImage(const QImage& image, const QString& name);

    /// True if the canvas is not what the sprite is.
    bool isCanvasModified() const;

    /// All of the canvas but its history, in the colours of the sprite.
    CanvasRecord canvasRecord() const;

    /// Shows the canvas in colours that are of no palette, or with null in those of the sprite.
    /// Pixels stay, and saving uses the sprite's own.
    void previewColors(const QVector<QRgb>* colors);

    /// True while the colours are not the sprite's: those of above, or of another current palette
    /// of `paletteEditor()`. What has to know the sprite's own, such as saving, cropping and
    /// pasting, ends it, and so does a change of its palette.
    bool isPreviewing() const;

    /// Adds a sprite for each image file, as "spr_add" does with those that are chosen: behind the
    /// others of the file that is seen, on the canvas or the stage, as one step of undo, after a
    /// question whether what does not show is cut off. Files are read on several threads, with
    /// progress; what could not be read is told at the end.
    void addFiles(const QStringList& files);

    /// Image files that are dropped on a widget are added.
    void takeDropsOn(QWidget* widget);

public slots:
    /// See above. Nothing without a sprite, or without changes.
    void saveImage();

signals:
    /// Another sprite is on the canvas, or none, or its pixels were read anew.
    void spriteShown();

    /// The canvas is shown in other colours: those of a preview, or the sprite's own, which may be
    /// others than before.
    void colorsShown();

protected:
    /// Image files are about to be added. True if the host has done it, or the person has given up:
    /// for one that asks more than whether images are cropped. What it added is shown then. Here
    /// false.
    virtual bool takeFiles(Sprites* into, const QStringList& files);

    /// Gives an identifier for each of the image files that are about to be added, in their order;
    /// with another number of them `into`, which takes them, numbers its new sprites. Here none.
    virtual void newIdentifiers(const Sprites& into, const QStringList& files,
                                QList<QVariant>* identifiers);

    /// The places that show the sprite in work, a line each for the person, for its properties.
    /// False, as here, if they are not known.
    virtual bool spriteUses(QStringList* places) const;

    /// Asked before the sprite in work is deleted, behind the question of "confirm_delete". False
    /// keeps it: for a host that knows who names it. Here true.
    virtual bool mayDeleteSprite();

private:
    friend class SpriteEditorPrivate;
    std::unique_ptr<SpriteEditorPrivate> d;
};

}  // namespace Zorv
