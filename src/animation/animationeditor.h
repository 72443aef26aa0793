#pragma once

#include "cache/spritenumber.h"
#include "editors/code/codefileeditor.h"
#include "graphics/stage/graphicsrenderer.h"

#include <QVariant>
#include <QVector>

#include <memory>

namespace Zorv {

class AnimationCode;
class AnimationEditorPrivate;
class Animations;
class FrameCode;
class GraphicsWorkspace;
class Sprites;
struct AssetRequest;
struct AssetResult;
struct FrameFacts;

/// The editor "anim": edits the animations of a text frame by frame, on a stage and a time line.
///
/// The text is the only source of truth. The editor shows one frame of the current animation. Each
/// user action becomes one edit of the text and one undo step. After every edit, whoever makes it,
/// the editor reads again what it shows. Any edit can destroy nodes of the text, so the editor
/// keeps no node. It finds animation and frame again by lines that move with the text. A node that
/// it returns is valid until the next edit. Each animation remembers its frame, each document its
/// animation.
///
/// It publishes the tools "anim_..." in the area "animations". While "anim_editcode" is checked
/// (the default), stage and text are linked: the stage shows the frame under the text cursor, and
/// the text cursor jumps to a frame chosen elsewhere. The editor never moves the text cursor within
/// the lines of the shown frame, in answer to a cursor move by the user, or during playback.
///
/// The class is abstract because only the host's editor knows the grammar. Indexes of animations
/// and frames start at 0; displayed texts count from 1. Main thread only.
class ZORV_EXPORT AnimationEditor : public CodeFileEditor
{
    Q_OBJECT

public:
    /// A numeric property of the frame, or of the selected box, that has an input field.
    enum class Field {
        X,
        Y,
        Time,  ///< in ticks; negative: forever
        ScaleX,
        ScaleY,
        Angle,  ///< degrees, counterclockwise
        BoxX,
        BoxY,
        BoxWidth,
        BoxHeight
    };

    /// The values that a field accepts.
    struct FieldRange
    {
        double minimum;
        double maximum;
        double step = 1;
        int decimals = 6;  ///< for fields with real numbers
    };

    /// The host owns the workspaces and the renderer; they must outlive the editor. For the other
    /// arguments see `CodeFileEditor`. `stage` shows the renderer while the editor is active.
    AnimationEditor(CodeWorkspace* code, GraphicsWorkspace* stage, GraphicsRenderer* renderer,
                    CodeItemModel* model = nullptr, const char* treeName = nullptr,
                    QObject* parent = nullptr);
    ~AnimationEditor() override;

    /// @name The editor
    /// @{

    /// "editor_anim"; disabled while the document has no list of animations.
    QAction* action() const override;

    /// "anim".
    QString name() const override;
    int canEditFileType() const override;
    QStringList areas() const override;

    /// The stage. `codeWorkspace()` shows the text.
    Workspace* workspace() const override;
    void reconfig() override;
    void retranslate() override;

    /// Opens the project's first file of animations, or its main document if it has none. Keeps the
    /// current document if that belongs to the project. Null for none.
    void setProject(Project* project) override;
    void projectAboutToClose(Project* project) override;

    /// Also binds the list of animations that is registered with the document.
    void setDocument(CodeDocument* document) override;

    /// Also asks about unapplied text in the code window.
    bool canDiscardInput() const override;

    /// As in `CodeFileEditor`, but first enters what was typed into a field.
    void save() override;
    void undo() override;
    void redo() override;

    /// Work on contact boxes while the stage has the keyboard focus, otherwise on the text.
    void cut() override;
    void copy() override;
    void paste() override;

    /// If linked ("anim_editcode"), shows the frame or animation of that line. The lines above a
    /// frame belong to it. Playback goes on; the line under the cursor is applied when playback
    /// ends.
    void currLineChanged(int line) override;

    /// @}
    /// @name What is shown
    /// @{

    /// The current list; null for none.
    Animations* animations() const;

    /// The sprites of the document's project; null for none.
    Sprites* sprites() const;

    /// Null or -1 for none. Nodes are valid until the next edit.
    AnimationCode* currentAnimation() const;
    FrameCode* currentFrame() const;
    int animationIndex() const;
    int frameIndex() const;
    int frameCount() const;

    /// The frame that follows the shown one in playback, through the loop point; null for none.
    FrameCode* nextFrame() const;

    /// The frames that multi-frame commands act on, in order: the frames selected on the strip, or
    /// the shown frame if none is selected.
    QVector<int> selectedFrames() const;

    GraphicsRenderer* renderer() const;
    GraphicsWorkspace* graphicsWorkspace() const;
    bool isPlaying() const;

    /// Whether stage and text are linked.
    bool isEditCodeMode() const;

    /// Switches the link on or off, like "anim_editcode". Brings `editor` to the front unless null.
    void setEditCodeMode(bool on, Editor* editor);

    /// @}
    /// @name Changes from outside
    /// @{

    /// True if there is a frame whose values can be changed now.
    bool canChangeFieldValue() const;

    /// Bracket a change of the text that fields must not react to. No effect without
    /// "anim_editcode".
    void beginChangeFieldValue();
    void endChangeFieldValue();

    /// Inserts one frame per sprite into the shown animation, before frame `index`, and shows the
    /// last new one. An `index` equal to the frame count appends. One undo step. Does nothing
    /// without an animation, or if the grammar has no new frame.
    void addSprites(int index, const QVector<SpriteNumber>& sprites);

    /// Asks for a new animation like the tool "anim_add". It gets one frame per sprite instead of
    /// the frames of the template. One undo step.
    void newAnimation(const QVector<SpriteNumber>& sprites);

    /// Call after an edit of the text: shows its new state. Set `countChanged` if the number of
    /// animations may have changed. Moves the text cursor to the frame unless the user typed the
    /// edit into the text itself (`fromCode`).
    void animationCodeChanged(bool countChanged, bool fromCode);

    /// Reads and shows everything again.
    void update();

    /// @}

public slots:
    /// Show an animation, at the frame of it that was shown last, or a frame. Same as moving the
    /// sliders. Stops playback.
    void selectAnimation(int index);
    void selectFrame(int index);
    void play();
    void stopPlaying();

signals:
    /// Enable tools, in this order: there is an animation; there is a frame and no playback; as the
    /// second, and no code window is open; as the second, and the grammar has scale and angle.
    void enabled(bool isEnabled);
    void frameEnabled(bool isEnabled);
    void frameEnabledNC(bool isEnabled);
    void frameEnabledExtra(bool isEnabled);

    /// Another animation or frame is shown, its text has changed, or playback starts or ends.
    void shownChanged();

protected:
    /// Playback has ended.
    virtual void playStopped();

    /// Another animation is shown, or none.
    virtual void animationChanged(AnimationCode* animation);

    /// Animations were added or removed. Adjusts the ranges of the tools; an override must call it.
    virtual void animationCountChanged();

    /// Another frame is shown, or the same with a changed text; null for none. Passes the frame's
    /// contact boxes to the renderer.
    virtual void frameChanged(FrameCode* frame);

    /// The onion skin frame has changed. Null for none, and also while the neighbours of the shown
    /// frame are drawn instead. Passes its sprite and position to the renderer.
    virtual void onionFrameChanged(FrameCode* frame);

    /// Playback has shown the frame for `frameTick` ticks, and `next` follows: for a host that
    /// draws in-between states. Does nothing here.
    virtual void interpolateFrame(FrameCode* next, int frameTick);

    /// Converts the position to which a sprite was dragged into the frame's offset. Here they are
    /// equal.
    virtual QPoint offsetToParentFromInterpolation(QPoint position) const;

    /// How the sprite of the frame is drawn, by the keys of `SpriteProvider::property()`. Here: at
    /// the frame's offset from the main cross, movable, not rotated and in its own size.
    virtual QVariant spriteProperty(FrameCode* frame, Sprite* sprite, unsigned int key) const;

    /// The numbers that the grammar accepts. Called when a project is set and for each keyboard
    /// edit.
    virtual FieldRange fieldRange(Field field) const = 0;

    /// The user drags or releases the stage item that follows the frame's offset: first the fields
    /// follow, then the text. The dialog of the extra cross shows its position. Boxes are written.
    virtual void itemMoved(GraphicsRenderer::ItemType type, void* item, QPoint position);
    virtual void itemReleased(GraphicsRenderer::ItemType type, void* item, QPoint position);

    /// Writes a box; both corners are inside it. Null if the text cannot take it.
    virtual ContactBoxCode* addContactBox(FrameCode* frame, ContactBoxCode::BoxType type,
                                          QPoint topLeft, QPoint bottomRight) = 0;

    /// Replaces the boxes of `target` by those of `source`. The nodes may be new ones afterwards.
    virtual void copyContactBoxes(FrameCode* source, FrameCode* target) = 0;

    /// Writes the current animation. On failure false, with the reason in `error`.
    virtual bool saveAnimationGIF(const QString& fileName, QString* error) = 0;

    /// Brings the sprites of animations of another project, with their palettes, into the
    /// destination. All of them in one undo step, or none and an `error`. Called before the edit of
    /// the text, which then uses the sprite numbers of the result.
    virtual AssetResult importAssets(const AssetRequest& request) = 0;

    /// Asks the user for a new animation: identifier, text (empty: use the template) and position
    /// in the list, which is preset with a proposal. False if the user cancelled.
    virtual bool newAnimationData(QString& identifier, QString& text, int& position) = 0;

    /// The frame data shown in the panel, requested shortly after each edit. Here computed from the
    /// frames alone. Override it if the engine ends an attack by other rules.
    virtual FrameFacts frameFacts(const AnimationCode* animation) const;

    /// Called before the current animation is deleted, after the question of "confirm_delete".
    /// False keeps the animation: for a host that knows what refers to it. Here true.
    virtual bool mayDeleteAnimation();

    /// The stage item that follows the frame's offset; initially the sprite.
    void setSpriteItemType(GraphicsRenderer::ItemType type);

    /// Whether the grammar has scale and angle; initially true.
    void setFrameExtra(bool hasExtra);

    void attach() override;
    void detach() override;

private:
    friend class AnimationEditorPrivate;
    std::unique_ptr<AnimationEditorPrivate> d;
};

}  // namespace Zorv
