#pragma once

#include "editors/framework/extraeditor.h"

#include <memory>

namespace Zorv {

class AnimationEditor;
class Project;
class SpriteList;
class ThumbnailsEditorPrivate;

/// The side panel that shows the sprites of a project as thumbnails and creates animations from
/// them.
///
/// It publishes the list as "thumb_list" for all areas, and the actions of the slots below for the
/// area "anim". Sprites that no frame of the project uses are marked. Selected sprites can be
/// dragged onto the strip of an animation; Return adds them to the shown animation. Main thread
/// only.
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

    /// Shows the selected sprite file of a project; null for none. Call it again when files of the
    /// project are added or removed; with the same files it costs next to nothing. The project is
    /// not owned, and its files may be destroyed.
    void setProject(Project* project);

    /// The editor that receives sprites; null for none. Not owned; may be destroyed.
    void setAnimationEditor(AnimationEditor* editor);

    /// The list of pictures; null if it was destroyed with the host's window.
    SpriteList* list() const;

public slots:
    /// Add frames with the selected sprites, or with all, after the shown frame, in the order of
    /// the list. One undo step.
    void addSelected();
    void addAll();

    /// Ask for a new animation, like the editor's own tool. It gets one frame per sprite. One undo
    /// step.
    void newWithSelected();
    void newWithAll();

    /// Saves the selected sprites as image files: one sprite to a file chosen by the user, several
    /// into a folder as "GROUP-NUMBER.png". A file that cannot be written stays unchanged and is
    /// reported.
    void saveSelected();

signals:
    /// Enable actions. Save: there is a selection. Add, for the selection and for all: an animation
    /// is shown as well. New, likewise: there is a list of animations.
    void saveEnabled(bool isEnabled);
    void addEnabled(bool isEnabled);
    void addAllEnabled(bool isEnabled);
    void newEnabled(bool isEnabled);
    void newAllEnabled(bool isEnabled);

    /// A sprite was double-clicked, or Return was pressed, and it cannot be added to an animation.
    void spriteActivated(int row);

private:
    std::unique_ptr<ThumbnailsEditorPrivate> d;
};

}  // namespace Zorv
