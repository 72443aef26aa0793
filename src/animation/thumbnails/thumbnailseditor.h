#pragma once

#include "editors/framework/extraeditor.h"

#include <memory>

namespace Zorv {

class AnimationEditor;
class Project;
class SpriteList;
class ThumbnailsEditorPrivate;

/// The side panel with the sprites of a project as pictures, from which animations are made.
///
/// It publishes the list as "thumb_list", for all areas, and the actions of the slots below, for
/// the area "anim". Sprites that no frame of the project shows have a mark. Selected ones can be
/// dragged onto the strip of an animation, and Return adds them to the animation that is shown.
/// Main thread only.
class ZORV_EXPORT ThumbnailsEditor : public ExtraEditor
{
    Q_OBJECT

public:
    /// Publishes the tools to the installed host, which must outlive the editor.
    explicit ThumbnailsEditor(QObject* parent = nullptr);
    ~ThumbnailsEditor() override;

    /// "thumbnails".
    QString name() const override;
    QString displayName() const override;
    void retranslate() override;

    /// Shows the selected sprite file of a project; null for none. To be told again when files of
    /// the project come or go; a second time with the same files costs next to nothing. The project
    /// is not owned, and its files may die.
    void setProject(Project* project);

    /// Where sprites are added to; null for nowhere. Not owned, and may die.
    void setAnimationEditor(AnimationEditor* editor);

    /// The list of pictures; null if it has gone with the host's window.
    SpriteList* list() const;

public slots:
    /// Add frames with the selected sprites, or all, behind the frame that is shown, in the order
    /// of the list. One step of undo.
    void addSelected();
    void addAll();

    /// Ask for a new animation, as the editor's own tool does, which gets a frame for each of these
    /// sprites. One step of undo.
    void newWithSelected();
    void newWithAll();

    /// Writes the selected sprites as image files: one where the person says, several into a
    /// folder, as "GROUP-NUMBER.png". A file that cannot be written stays as it was, and is told.
    void saveSelected();

signals:
    /// Actions are of use: there is a selection; and an animation is shown, for the selection and
    /// for all; and there are animations at all, likewise.
    void saveEnabled(bool isEnabled);
    void addEnabled(bool isEnabled);
    void addAllEnabled(bool isEnabled);
    void newEnabled(bool isEnabled);
    void newAllEnabled(bool isEnabled);

    /// A double click on a sprite, or Return, where it cannot be added to an animation.
    void spriteActivated(int row);

private:
    std::unique_ptr<ThumbnailsEditorPrivate> d;
};

}  // namespace Zorv
