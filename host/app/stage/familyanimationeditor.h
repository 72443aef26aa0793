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

/// The library's editor of animations for the grammar of the family: flip, scale and angle on the
/// stage, the ranges of the fields, GIF files, and what a new animation is called.
///
/// It comes forward with each text that has animations, unless it is not wanted.
class FamilyAnimationEditor : public Zorv::AnimationEditor, public TextEditor
{
    Q_OBJECT

public:
    /// All of them outlive it.
    FamilyAnimationEditor(Zorv::CodeWorkspace* code, Zorv::GraphicsWorkspace* stage,
                          StageRenderer* renderer, QObject* parent = nullptr);

    /// Whether it comes forward with texts that have animations.
    bool isWanted() const { return m_isWanted; }
    void setWanted(bool isWanted) { m_isWanted = isWanted; }

    /// What asks before something is removed that is used elsewhere, see `WindowServices`.
    void setRemovalCheck(const RemovalCheck& mayRemove) { m_mayRemove = mayRemove; }

    CodeFileEditor* fileEditor() override { return this; }
    bool wants(const Family::FamilyDocument* document) const override;
    void setText(Family::FamilyDocument* document) override;

    /// Brings its action in line with a text whose animations came or went.
    void updateAction();

    /// The cursor of the text stands still in a line: only then it is followed, for a jump takes it
    /// through other lines.
    void cursorRests(int line) { AnimationEditor::currLineChanged(line); }
    void currLineChanged(int) override {}

    /// Null for none. Good until the next edit.
    const Family::FrameNode* frame() const;

    /// Null if the frame or its sprite is absent.
    Family::FamilySprite* sprite() const;
    Family::SpriteCollection* spriteCollection() const;

    /// How that sprite stands, and the frame's offset also without one.
    Family::FramePose pose() const;

    /// Those of texts as well: the text stands on the same page.
    QStringList areas() const override;

    /// The window tells which text is in front.
    void setProject(Zorv::Project*) override {}

protected:
    /// The sprite hangs on the secondary cross, which stands at the frame's offset: so it is
    /// turned and mirrored about its axis.
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

    /// By the rules of the engine, if a move shows the animation: it ends with a frame that stays.
    Zorv::FrameFacts frameFacts(const Zorv::AnimationCode* animation) const override;
    bool newAnimationData(QString& identifier, QString& text, int& position) override;

private:
    RemovalCheck m_mayRemove;
    bool m_isWanted = true;
};

/// True for a text that is there for animations, or has one.
bool hasAnimations(const Family::FamilyDocument* document);

}  // namespace App
