#include "app/stage/familyanimationeditor.h"

#include "app/look/icon.h"
#include "app/stage/newanimationdialog.h"
#include "app/stage/stagerenderer.h"
#include "family/assets/familysprite.h"
#include "family/assets/spritecollection.h"
#include "family/familyanimations.h"
#include "family/familydocument.h"
#include "family/grammar/linereader.h"
#include "family/meaning/projectnames.h"
#include "family/nodes/animationnode.h"
#include "family/nodes/framenode.h"
#include "family/project/familyproject.h"
#include "family/stage/framecomposer.h"
#include "operations/check/uses.h"
#include "operations/media/animationgif.h"
#include "operations/media/assetimport.h"
#include "operations/moveframes.h"

#include <zorv/animation/edits/boxedits.h>
#include <zorv/animation/framefacts.h>
#include <zorv/code/codedoc/animationcode.h>
#include <zorv/code/codedoc/contactboxescode.h>
#include <zorv/core/interface.h>
#include <zorv/core/safefile.h>

#include <QAction>
#include <QTextBlock>

namespace App {

using Family::FamilyDocument;
using Family::FrameNode;
using Zorv::GraphicsRenderer;

namespace {

// Attached to the secondary cross and not movable by itself: dragging it moves the cross.
constexpr int SpriteMode = 2;
constexpr int SpriteParent = 1;

// Attached to the main cross, which cannot be moved.
constexpr unsigned char AxisMode = 1;

constexpr double ScaleStep = 0.1;

/// True also for an empty text.
bool endsInEmptyLine(const QTextDocument& text)
{
    const QTextBlock last = text.lastBlock();
    const QTextBlock above = last.previous();
    return last.length() == 1 && (!above.isValid() || above.length() == 1);
}

Zorv::AnimationEditor::FieldRange rangeOf(Family::FrameOptionIndex option, double step = 1)
{
    const Family::FrameOption& row = Family::frameOption(option);
    return {row.minimum, row.maximum, step};
}

}  // namespace

bool hasAnimations(const FamilyDocument* document)
{
    return document && (document->kind() == Family::FileKind::Animations ||
                        document->animations()->count() > 0);
}

FamilyAnimationEditor::FamilyAnimationEditor(Zorv::CodeWorkspace* code,
                                             Zorv::GraphicsWorkspace* stage,
                                             StageRenderer* renderer, QObject* parent)
    : AnimationEditor(code, stage, renderer, nullptr, nullptr, parent)
{
    setSpriteItemType(GraphicsRenderer::SecondaryCross);
    renderer->setItemPositionMode(GraphicsRenderer::MainCross, AxisMode, 0, 0);
    action()->setIcon(icon(QStringLiteral(":/zorvl_icons/icons/anim.png")));
}

bool FamilyAnimationEditor::wants(const FamilyDocument* document) const
{
    return m_isWanted && hasAnimations(document);
}

void FamilyAnimationEditor::setText(FamilyDocument* document)
{
    if (!document) {
        deactivate();
    }
    setDocument(document);
    updateAction();
}

void FamilyAnimationEditor::updateAction()
{
    action()->setEnabled(hasAnimations(static_cast<FamilyDocument*>(document())));
}

const FrameNode* FamilyAnimationEditor::frame() const
{
    return static_cast<const FrameNode*>(currentFrame());
}

Family::SpriteCollection* FamilyAnimationEditor::spriteCollection() const
{
    return static_cast<Family::SpriteCollection*>(sprites());
}

Family::FamilySprite* FamilyAnimationEditor::sprite() const
{
    const FrameNode* shown = frame();
    return shown ? static_cast<Family::FamilySprite*>(shown->sprite()) : nullptr;
}

Family::FramePose FamilyAnimationEditor::pose() const
{
    const FrameNode* shown = frame();
    const Family::FamilySprite* picture = sprite();
    return Family::poseOf(shown ? shown->data() : Family::FrameData(),
                          picture ? picture->size() : QSize(0, 0),
                          picture ? picture->axis() : QPoint());
}

QStringList FamilyAnimationEditor::areas() const
{
    return {QStringLiteral("animations"), QStringLiteral("anim"), QStringLiteral("code")};
}

QVariant FamilyAnimationEditor::spriteProperty(Zorv::FrameCode* frame, Zorv::Sprite* sprite,
                                               unsigned key) const
{
    const Family::FramePose pose =
        Family::poseOf(static_cast<const FrameNode*>(frame)->data(), sprite->size(),
                       static_cast<const Family::FamilySprite*>(sprite)->axis());
    switch (key) {
    case 0:
        return pose.position;
    case 1:
        return SpriteMode;
    case 2:
        return SpriteParent;
    case 3:
        return pose.size;
    case 4:
        return pose.scale;
    case 5:
        return int(pose.flip);
    case 6:
        return pose.rotation;
    default:
        return 0;
    }
}

void FamilyAnimationEditor::frameChanged(Zorv::FrameCode* frame)
{
    AnimationEditor::frameChanged(frame);
    renderer()->setItemPosition(GraphicsRenderer::SecondaryCross,
                                frame ? frame->offset() : QPoint(), 0);
}

Zorv::AnimationEditor::FieldRange FamilyAnimationEditor::fieldRange(Field field) const
{
    switch (field) {
    case Field::X:
    case Field::Y:
        return rangeOf(Family::OffsetOption);
    case Field::Time:
        return rangeOf(Family::DelayOption);
    case Field::ScaleX:
    case Field::ScaleY:
        return rangeOf(Family::ScaleOption, ScaleStep);
    case Field::Angle:
        return rangeOf(Family::AngleOption);
    case Field::BoxX:
    case Field::BoxY:
        return {Family::LeastPlace, Family::MostPlace};
    case Field::BoxWidth:
    case Field::BoxHeight:
        break;
    }
    return {1, Family::MostPlace - Family::LeastPlace + 1};
}

Zorv::ContactBoxCode* FamilyAnimationEditor::addContactBox(Zorv::FrameCode* frame,
                                                           Zorv::ContactBoxCode::BoxType type,
                                                           QPoint topLeft, QPoint bottomRight)
{
    return frame->contactBoxes(type)->add(QRect(topLeft, bottomRight));
}

void FamilyAnimationEditor::copyContactBoxes(Zorv::FrameCode* source, Zorv::FrameCode* target)
{
    Zorv::copyBoxes(source, target);
}

bool FamilyAnimationEditor::saveAnimationGIF(const QString& fileName, QString* error)
{
    Family::FrameComposer composer(spriteCollection(), {});
    const QByteArray bytes = Operations::animationGif(*currentAnimation(), &composer, error);
    return !bytes.isEmpty() && Zorv::SafeFile::save(fileName, bytes, error);
}

bool FamilyAnimationEditor::mayDeleteAnimation()
{
    return !m_mayRemove || m_mayRemove([this] {
        const auto* text = static_cast<FamilyDocument*>(document());
        return text ? Operations::removalOf(*text, {animationIndex()}) : Operations::Removal();
    });
}

Zorv::AssetResult FamilyAnimationEditor::importAssets(const Zorv::AssetRequest& request)
{
    return Operations::importAssets(request);
}

Zorv::FrameFacts FamilyAnimationEditor::frameFacts(const Zorv::AnimationCode* animation) const
{
    Zorv::FrameFacts facts(animation);
    const auto* document = static_cast<const FamilyDocument*>(this->document());
    const auto* project = static_cast<const Family::FamilyProject*>(document->project());
    const auto played =
        Operations::moveFactsOf(static_cast<const Family::AnimationNode*>(animation),
                                Family::ProjectNames(document, project));
    if (!played) {
        return facts;
    }
    facts.isAttack = !played->active.isEmpty();
    facts.start = facts.isAttack ? played->start : 0;
    facts.active = 0;
    for (const Rules::MoveFacts::Active& active : played->active) {
        facts.active += active.ticks;
    }
    facts.recovery = played->recovery;
    facts.pause = facts.isAttack ? played->total - facts.start - facts.active - facts.recovery : 0;
    facts.total = played->total;
    return facts;
}

bool FamilyAnimationEditor::newAnimationData(QString& identifier, QString& text, int& position)
{
    const Family::FamilyAnimations* list = static_cast<FamilyDocument*>(document())->animations();
    NewAnimationDialog dialog(list, position, host()->mainWindow());
    if (dialog.exec() != QDialog::Accepted) {
        return false;
    }
    identifier = dialog.identifier();
    position = dialog.position();
    text = list->animationTemplate().arg(identifier);
    // An empty line separates it from the others.
    if (position < list->count()) {
        text += QLatin1Char('\n');
    } else if (!endsInEmptyLine(*document())) {
        text.prepend(QLatin1Char('\n'));
    }
    return true;
}

}  // namespace App
