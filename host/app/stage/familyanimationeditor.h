#pragma once

#include "app/window/texteditor.h"
#include "app/window/windowservices.h"
#include "family/stage/framepose.h"

#include <zorv/animation/animationeditor.h>

namespace Family {
class FamilySprite;
class FrameNode;
class SpriteCollection;
}  // namespace Family

namespace App {

class StageRenderer;

/// The library's animation editor for the grammar of this engine family: flip, scale and angle on
/// the stage, field ranges, GIF files, and the names of new animations.
///
/// It comes to the front with each text that has animations, unless it is not wanted.
class FamilyAnimationEditor : public Zorv::AnimationEditor, public TextEditor
{
    Q_OBJECT

public:
    /// All of them outlive it.
    FamilyAnimationEditor(Zorv::CodeWorkspace* code, Zorv::GraphicsWorkspace* stage,
                          StageRenderer* renderer, QObject* parent = nullptr);

    /// Whether it comes to the front with texts that have animations.
    bool isWanted() const { return m_isWanted; }
    void setWanted(bool isWanted) { m_isWanted = isWanted; }

    /// The check before something that is used elsewhere is removed, see `WindowServices`.
    void setRemovalCheck(const RemovalCheck& mayRemove) { m_mayRemove = mayRemove; }

    CodeFileEditor* fileEditor() override { return this; }
    bool wants(const Family::FamilyDocument* document) const override;
    void setText(Family::FamilyDocument* document) override;

    /// Updates its action after animations were added to the text or removed.
    void updateAction();

    /// The cursor has come to rest in a line. Only then is it followed: a jump passes through other
    /// lines first.
    void cursorRests(int line) { AnimationEditor::currLineChanged(line); }
    void currLineChanged(int) override {}

    /// Null for none. Valid until the next edit.
    const Family::FrameNode* frame() const;

    /// Null if the frame or its sprite does not exist.
    Family::FamilySprite* sprite() const;
    Family::SpriteCollection* spriteCollection() const;

    /// The pose of that sprite; contains the frame's offset even without a sprite.
    Family::FramePose pose() const;

    /// Includes the areas of texts: the text is on the same page.
    QStringList areas() const override;

    /// Does nothing: the window sets the text in front.
    void setProject(Zorv::Project*) override {}

protected:
    /// The sprite is attached to the secondary cross at the frame's offset, so it is rotated and
    /// mirrored around its axis.
    QVariant spriteProperty(Zorv::FrameCode* frame, Zorv::Sprite* sprite,
                            unsigned key) const override;
    void frameChanged(Zorv::FrameCode* frame) override;

    FieldRange fieldRange(Field field) const override;
    Zorv::ContactBoxCode* addContactBox(Zorv::FrameCode* frame, Zorv::ContactBoxCode::BoxType type,
                                        QPoint topLeft, QPoint bottomRight) override;
    void copyContactBoxes(Zorv::FrameCode* source, Zorv::FrameCode* target) override;
    bool saveAnimationGIF(const QString& fileName, QString* error) override;
    Zorv::AssetResult importAssets(const Zorv::AssetRequest& request) override;
    bool mayDeleteAnimation() override;

    /// Uses the rules of the engine if a move shows the animation: such an animation ends with a
    /// frame that stays.
    Zorv::FrameFacts frameFacts(const Zorv::AnimationCode* animation) const override;
    bool newAnimationData(QString& identifier, QString& text, int& position) override;

private:
    RemovalCheck m_mayRemove;
    bool m_isWanted = true;
};

/// True for a text that is meant for animations or contains one.
bool hasAnimations(const Family::FamilyDocument* document);

}  // namespace App
