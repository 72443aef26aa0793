#include "app/stage/stagecontroller.h"

#include "app/stage/stageedits.h"
#include "app/stage/stageplayer.h"
#include "app/stage/stagerenderer.h"
#include "app/stage/stagesight.h"
#include "family/familyanimations.h"
#include "family/familydocument.h"
#include "family/nodes/animationnode.h"
#include "family/nodes/framenode.h"

#include <zorv/animation/timeline/timelinewidget.h>
#include <zorv/graphics/renderwidget.h>

#include <QTextBlock>
#include <QTimer>
#include <algorithm>

namespace App {

using Family::AnimationNode;
using Family::FamilyDocument;
using Family::FrameNode;
using Zorv::CodeNode;
using Zorv::ContactBoxCode;
using Zorv::GraphicsRenderer;

namespace {

// Relative to the origin, and not to be moved: the axis of the animation.
constexpr unsigned char AxisMode = 1;

/// Boxes stand in front of their frame. -1 for the head.
int frameOfLine(const FamilyDocument* document, const AnimationNode* animation, int line)
{
    const QTextBlock block = document->findBlockByNumber(line);
    const CodeNode* node = document->nodeInBlock(block);
    if (node == animation) {
        return -1;
    }
    if (!node) {
        node = document->nodeBefore(block);
    }
    if (node->type() != CodeNode::Frame || node->block() != block) {
        node = node->next(CodeNode::Frame, CodeNode::Animation | CodeNode::Group);
    }
    return node ? static_cast<const FrameNode*>(node)->index() : animation->childCount() - 1;
}

}  // namespace

StageController::StageController(StageRenderer* stage, Zorv::TimeLineWidget* timeLine,
                                 QObject* parent)
    : QObject(parent), m_stage(stage), m_timeLine(timeLine), m_row(&m_animation),
      m_player(new StagePlayer(&m_animation, timeLine, this))
{
    m_provider.setAnimation(&m_animation);
    m_onion.setAnimation(&m_animation);
    m_onion.setFrame(-1);
    timeLine->addTimeLine(&m_row);
    stage->setItemPositionMode(GraphicsRenderer::MainCross, AxisMode, 0, 0);
    stage->setSprites(&m_provider);

    connect(&m_animation, &Zorv::FollowedAnimation::changed, this, &StageController::updateSoon);
    connect(&m_provider, &Zorv::SpriteProvider::changed, this, &StageController::updateSoon);
    connect(&m_onion, &Zorv::SpriteProvider::changed, this, &StageController::showOnion);
    connect(m_player, &StagePlayer::frameReached, this, &StageController::frameReached);
    connect(m_player, &StagePlayer::stateChanged, this, &StageController::stateChanged);
    connect(m_player, &StagePlayer::ended, this, &StageController::requestLine);
    const auto* edits = new StageEdits(stage, &m_provider, this);
    connect(edits, &StageEdits::released, this, &StageController::updateSoon);
    connect(stage, &StageRenderer::inputComes, this, &StageController::inputComes);
    connect(stage, &StageRenderer::inputTaken, this, &StageController::inputTaken);
    connect(stage, &StageRenderer::aboutToGrab, this, &StageController::breakOff);
}

StageController::~StageController()
{
    if (m_timeLine) {
        m_timeLine->stop();
        m_timeLine->clearTimeLines();
    }
    m_stage->setSprites(nullptr);
    m_stage->setContactBoxes(ContactBoxCode::Attack, nullptr);
    m_stage->setContactBoxes(ContactBoxCode::Collision, nullptr);
    m_stage->setOnionSkinSprite(nullptr, {});
}

void StageController::setDocument(FamilyDocument* document)
{
    if (document != m_document) {
        m_document = document;
        m_lastFrames.clear();
        setAnimation(nullptr);
    }
}

void StageController::setSprites(Family::SpriteCollection* sprites)
{
    m_sprites = sprites;
    m_provider.setSprites(sprites);
    m_onion.setSprites(sprites);
}

void StageController::followLine(int line)
{
    if (!m_document || m_document->isCodeBeingChanged()) {
        return;
    }
    AnimationNode* found = m_document->animations()->animationAt(line);
    const int index = found ? frameOfLine(m_document, found, line) : -1;
    if (found || !animation()) {
        setAnimation(found ? found : m_document->animations()->animation(0));
    }
    if (!isPlaying()) {
        showFrame(index);
    }
}

void StageController::showAnimation(int row)
{
    if (m_document && !m_document->isCodeBeingChanged() && row >= 0) {
        setAnimation(m_document->animations()->animation(row));
    }
}

AnimationNode* StageController::animation() const
{
    return static_cast<AnimationNode*>(m_animation.animation());
}

/// With the frame that was shown last; the same animation stays as it is.
void StageController::setAnimation(AnimationNode* animation)
{
    if (animation == m_animation.animation()) {
        return;
    }
    breakOff();
    m_animation.setAnimation(animation);
    const int last = animation ? m_lastFrames.value(animation->identifier(), 0) : 0;
    m_provider.setFrame(std::min(last, std::max(frameCount() - 1, 0)));
    m_isStale = true;
    update();
    if (animation) {
        bringSoon();
    }
}

int StageController::frameIndex() const
{
    return m_provider.frame() ? m_provider.frameIndex() : -1;
}

void StageController::showFrame(int index)
{
    if (index < 0 || index >= frameCount() || index == m_provider.frameIndex()) {
        return;
    }
    // Who has chosen a detail sees it from frame to frame.
    const bool wasWhole = !frame() || StageSight(m_stage).isWhole(*frame(), m_sprites);
    m_provider.setFrame(index);
    m_isStale = true;
    update();
    if (wasWhole && !isPlaying()) {
        bringSoon();
    }
}

/// The stage may have to get its room first.
void StageController::bringSoon()
{
    if (!m_isBringPending) {
        m_isBringPending = true;
        QTimer::singleShot(0, this, &StageController::bring);
    }
}

void StageController::bring()
{
    m_isBringPending = false;
    const Zorv::RenderWidget* widget = m_stage->widget();
    if (!frame() || !widget || !widget->isVisible() || isPlaying()) {
        return;
    }
    if (!m_isPlaceKept) {
        StageSight(m_stage).bring(*frame(), m_sprites);
    }
    m_isPlaceKept = false;
}

void StageController::placeTaken(bool isKept)
{
    m_isPlaceKept = isKept;
    bringSoon();
}

void StageController::stepFrame(int step)
{
    breakOff();
    const int count = frameCount();
    if (count > 0) {
        showFrame((m_provider.frameIndex() + step % count + count) % count);
        requestLine();
    }
}

void StageController::frameReached(int index, bool byHand)
{
    showFrame(index);
    if (byHand) {
        requestLine();
    }
}

bool StageController::isPlaying() const
{
    return m_player->isPlaying();
}

void StageController::play()
{
    m_player->play();
}

void StageController::stop()
{
    if (isPlaying()) {
        breakOff();
        requestLine();
    }
}

void StageController::breakOff()
{
    m_player->stop();
}

void StageController::removeSelectedBoxes()
{
    m_stage->keyPressed(Qt::Key_Delete, Qt::NoModifier);
}

void StageController::followSelection()
{
    const bool hasSelection = !m_stage->selectedContactBoxes().isEmpty();
    if (hasSelection != m_hasSelection) {
        m_hasSelection = hasSelection;
        emit stateChanged();
    }
}

void StageController::setOnionFrame(int index)
{
    m_onion.setFrame(index);
}

/// The text may still be busy with the edit that this comes from.
void StageController::updateSoon()
{
    m_isStale = true;
    if (!m_isUpdatePending) {
        m_isUpdatePending = true;
        QTimer::singleShot(0, this, [this] {
            m_isUpdatePending = false;
            update();
        });
    }
}

void StageController::update()
{
    if (!m_isStale || m_inputs > 0) {
        return;
    }
    m_isStale = false;
    // Frames may have gone from the text.
    const int last = frameCount() - 1;
    if (m_provider.frameIndex() > last && last >= 0) {
        m_provider.setFrame(last);
    }
    if (const AnimationNode* shown = animation()) {
        m_lastFrames.insert(shown->identifier(), m_provider.frameIndex());
    }
    showScene();
    m_player->goToFrame(m_provider.frameIndex());
    if (m_timeLine) {
        m_timeLine->update();
    }
    emit stateChanged();
}

void StageController::showScene()
{
    const FrameNode* shown = frame();
    m_stage->setItemPosition(GraphicsRenderer::SecondaryCross, m_provider.pose().axis, 0);
    for (const auto type : {ContactBoxCode::Attack, ContactBoxCode::Collision}) {
        m_stage->setContactBoxes(type, shown ? shown->contactBoxes(type) : nullptr);
    }
    m_hasSelection = !m_stage->selectedContactBoxes().isEmpty();
    m_stage->Renderer::update();
}

void StageController::showOnion()
{
    m_stage->replaceOnionSkinSprite(m_onion.sprite(), m_onion.onionOffset());
}

void StageController::inputComes()
{
    update();
    if (m_inputs++ == 0) {
        m_revision = m_document ? m_document->revision() : 0;
    }
}

void StageController::inputTaken()
{
    --m_inputs;
    update();
    followSelection();
    if (m_inputs == 0 && m_document && m_document->revision() != m_revision) {
        requestEditedLine();
    }
}

void StageController::requestLine()
{
    if (const FrameNode* shown = frame()) {
        emit lineRequested(shown->block().blockNumber());
    }
}

void StageController::requestEditedLine()
{
    const QList<ContactBoxCode*> boxes = m_stage->selectedContactBoxes();
    const ContactBoxCode* first = boxes.isEmpty() ? nullptr : boxes.first();
    if (first && first->line() >= 0) {
        emit lineRequested(first->line());
    } else {
        requestLine();
    }
}

}  // namespace App
