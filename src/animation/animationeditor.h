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

/// The editor "anim": the animations of a text, frame by frame, on a stage and a time line.
///
/// The text is the only truth. The editor shows one frame of the animation in work and makes an
/// edit of the text of each act of the person, one step of undo each; what shows is read anew after
/// every edit, whoever makes it. Nodes of the text die at any edit, so the editor keeps none:
/// animation and frame are found again, by lines that move with the text, and what it gives out is
/// good until the next edit. Each animation remembers its frame, each document its animation.
///
/// It publishes the tools "anim_...", in the area "animations". With "anim_editcode", which is
/// checked at first, stage and text are linked: the frame under the text cursor is shown, and the
/// text cursor goes to the frame that is chosen elsewhere. It never moves within the lines of the
/// frame that is shown, nor because the person has moved it, nor while an animation plays.
///
/// It is abstract: the host's editor knows the grammar. Numbers of animations and frames are places
/// from 0; texts count from 1. Main thread only.
class ZORV_EXPORT AnimationEditor : public CodeFileEditor
{
    Q_OBJECT

public:
    /// A number of the frame or of the selected box that has a field.
    enum class Field {
        X,
        Y,
        Time,  ///< ticks; negative for ever
        ScaleX,
        ScaleY,
        Angle,  ///< degrees, counterclockwise
        BoxX,
        BoxY,
        BoxWidth,
        BoxHeight
    };

    /// What a field takes.
    struct FieldRange
    {
        double minimum;
        double maximum;
        double step = 1;
        int decimals = 6;  ///< of a field for real numbers
    };

    /// Workspaces and renderer are the host's and outlive the editor; for the rest see
    /// `CodeFileEditor`. The renderer is shown in `stage` while the editor is active.
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

    /// The stage; the text is shown in `codeWorkspace()`.
    Workspace* workspace() const override;
    void reconfig() override;
    void retranslate() override;

    /// Takes up the first file of animations of the project, or else its main document, unless the
    /// document in work is one of the project. Null for none.
    void setProject(Project* project) override;
    void projectAboutToClose(Project* project) override;

    /// Also binds the list of animations that is registered with the document.
    void setDocument(CodeDocument* document) override;

    /// Asks about what is typed in the window of code, too.
    bool canDiscardInput() const override;

    /// As of `CodeFileEditor`, with what was typed into a field and not yet entered.
    void save() override;
    void undo() override;
    void redo() override;

    /// Of contact boxes while the stage has the keyboard, else of the text.
    void cut() override;
    void copy() override;
    void paste() override;

    /// With "anim_editcode" the frame of that line is shown, or the animation. Lines in front of a
    /// frame belong to it. An animation that plays goes on, and what is under the cursor is taken
    /// up when it ends.
    void currLineChanged(int line) override;

    /// @}
    /// @name What is shown
    /// @{

    /// The list in work; null for none.
    Animations* animations() const;

    /// The sprites of the project of the document; null for none.
    Sprites* sprites() const;

    /// Null, or -1, for none. Nodes are good until the next edit.
    AnimationCode* currentAnimation() const;
    FrameCode* currentFrame() const;
    int animationIndex() const;
    int frameIndex() const;
    int frameCount() const;

    /// The frame that follows the shown one in play, by way of the loop point; null for none.
    FrameCode* nextFrame() const;

    /// The frames that commands for several frames act on, in their order: those selected on the
    /// strip, else the shown one.
    QVector<int> selectedFrames() const;

    GraphicsRenderer* renderer() const;
    GraphicsWorkspace* graphicsWorkspace() const;
    bool isPlaying() const;

    /// Whether stage and text are linked.
    bool isEditCodeMode() const;

    /// Links them or not, as "anim_editcode" does. With an editor, that one is brought forward.
    void setEditCodeMode(bool on, Editor* editor);

    /// @}
    /// @name Changes from outside
    /// @{

    /// True if there is a frame whose values can be changed now.
    bool canChangeFieldValue() const;

    /// Bracket a change of the text that fields must not answer. Nothing without "anim_editcode".
    void beginChangeFieldValue();
    void endChangeFieldValue();

    /// Puts frames with these sprites in front of a frame of the animation that is shown, behind
    /// the last one for their count, and shows the last of them. One step of undo. Nothing without
    /// an animation, or where the grammar knows no new frame.
    void addSprites(int index, const QVector<SpriteNumber>& sprites);

    /// Asks for a new animation, as the tool "anim_add" does, which gets a frame for each of these
    /// sprites in place of those of the template. One step of undo.
    void newAnimation(const QVector<SpriteNumber>& sprites);

    /// The text has been edited: shows what it says now, with `countChanged` also how many
    /// animations there are. Unless the text itself was typed in (`fromCode`), the text cursor goes
    /// to the frame.
    void animationCodeChanged(bool countChanged, bool fromCode);

    /// Shows everything anew.
    void update();

    /// @}

public slots:
    /// Shows an animation with the frame of it that was shown last, or a frame, as their sliders
    /// do. Play ends.
    void selectAnimation(int index);
    void selectFrame(int index);
    void play();
    void stopPlaying();

signals:
    /// Tools are of use: with an animation; with a frame, and no play; the same, and no window of
    /// code is open; the same as the second, where the grammar has scale and angle.
    void enabled(bool isEnabled);
    void frameEnabled(bool isEnabled);
    void frameEnabledNC(bool isEnabled);
    void frameEnabledExtra(bool isEnabled);

    /// Another animation or frame is shown, its text has changed, or play begins or ends.
    void shownChanged();

protected:
    /// Play has come to its end.
    virtual void playStopped();

    /// Another animation is shown, or none.
    virtual void animationChanged(AnimationCode* animation);

    /// Animations have come or gone. Fits the ranges of the tools: to be called by an override.
    virtual void animationCountChanged();

    /// A frame is shown, anew or with another text; null for none. Hands its contact boxes to the
    /// renderer.
    virtual void frameChanged(FrameCode* frame);

    /// The frame of the onion skin; null for none, also while frames around the shown one take its
    /// place. Hands its sprite and place to the renderer.
    virtual void onionFrameChanged(FrameCode* frame);

    /// The shown frame stands for so many ticks by now, and `next` follows: for a host that shows
    /// what is between them. Does nothing.
    virtual void interpolateFrame(FrameCode* next, int frameTick);

    /// The frame's offset for a position to which its sprite was dragged: here the same.
    virtual QPoint offsetToParentFromInterpolation(QPoint position) const;

    /// How the sprite of the frame stands, by the keys of `SpriteProvider::property()`. Here at
    /// the frame's offset from the main cross, movable, unturned and in its own size.
    virtual QVariant spriteProperty(FrameCode* frame, Sprite* sprite, unsigned int key) const;

    /// The numbers that the grammar takes. Asked when a project comes, and for each edit by keys.
    virtual FieldRange fieldRange(Field field) const = 0;

    /// The item of the stage that follows the frame's offset is dragged, and is let go: the fields
    /// follow it, and then the text. The extra cross is shown by its dialog. Boxes are written.
    virtual void itemMoved(GraphicsRenderer::ItemType type, void* item, QPoint position);
    virtual void itemReleased(GraphicsRenderer::ItemType type, void* item, QPoint position);

    /// Writes a box, with both corners part of it. Null if the text cannot take it.
    virtual ContactBoxCode* addContactBox(FrameCode* frame, ContactBoxCode::BoxType type,
                                          QPoint topLeft, QPoint bottomRight) = 0;

    /// Gives `target` the boxes of `source` in place of its own. The nodes may be others
    /// afterwards.
    virtual void copyContactBoxes(FrameCode* source, FrameCode* target) = 0;

    /// Writes the current animation. False, with why in `error`, for a file that was not written.
    virtual bool saveAnimationGIF(const QString& fileName, QString* error) = 0;

    /// Brings the sprites of animations of another project, with their palettes, into the
    /// destination: all of them in one step of undo, or none, with an `error`. Called in front of
    /// the edit of the text, which then names them as the result tells.
    virtual AssetResult importAssets(const AssetRequest& request) = 0;

    /// Asks the person for a new animation: identifier, text (empty for the template) and the place
    /// in the list, which comes in as a proposal. False if they gave up.
    virtual bool newAnimationData(QString& identifier, QString& text, int& position) = 0;

    /// The frame data of an animation, which the panel tells, asked a moment behind an edit. Here
    /// as its frames say; for a host whose engine ends an attack elsewhere.
    virtual FrameFacts frameFacts(const AnimationCode* animation) const;

    /// Asked before the current animation is deleted, behind the question of "confirm_delete".
    /// False keeps it: for a host that knows who names it. Here true.
    virtual bool mayDeleteAnimation();

    /// Which item of the stage follows the frame's offset; the sprite at first.
    void setSpriteItemType(GraphicsRenderer::ItemType type);

    /// Whether the grammar has scale and angle; true at first.
    void setFrameExtra(bool hasExtra);

    void attach() override;
    void detach() override;

private:
    friend class AnimationEditorPrivate;
    std::unique_ptr<AnimationEditorPrivate> d;
};

}  // namespace Zorv
