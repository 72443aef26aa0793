#include "animation/animationeditor_p.h"
#include "animation/timeline/timelinewidget.h"
#include "code/codedoc/animationcode.h"
#include "code/codedoc/animations.h"
#include "code/codedoc/framecode.h"
#include "core/interface.h"
#include "editors/code/codeeditor.h"
#include "editors/code/codeworkspace.h"
#include "graphics/graphicwork/graphicsworkspace.h"

#include <QAbstractSlider>
#include <QTextBlock>
#include <QTimer>

namespace Zorv {

namespace {

/// Sliders need a valid range, so without entries it is 0 to 0.
void setRange(QAbstractSlider* slider, int count)
{
    if (slider) {
        slider->setRange(0, qMax(count - 1, 0));
    }
}

}  // namespace

int AnimationEditorPrivate::animationCount() const
{
    return animations ? animations->count() : 0;
}

int AnimationEditorPrivate::animationIndex() const
{
    const AnimationCode* shown = currentAnimation();
    if (!animations || !shown) {
        return -1;
    }
    const int index = animations->currentIndex();
    return animations->at(unsigned(index)) == shown ? index : animations->indexOf(shown);
}

/// Looks for the shown frame on its line, which moves with edits; otherwise uses the remembered
/// index.
int AnimationEditorPrivate::frameIndex() const
{
    const AnimationCode* shown = currentAnimation();
    const int count = shown ? shown->frameCount() : 0;
    if (count == 0) {
        return -1;
    }
    const CodeNode* node = followed.document()->nodeInBlock(frameLine.block());
    if (node && node->type() == CodeNode::Frame && node->parentCode() == shown) {
        return static_cast<const FrameCode*>(node)->index();
    }
    return qBound(0, shown->currentFrame(), count - 1);
}

/// Only schedules the refresh: Qt is still processing the edit.
void AnimationEditorPrivate::textChanged()
{
    isStale = true;
    // At the end of playback, do not move the text cursor away from a user who is typing.
    const QWidget* text = editor->codeWorkspace()->editor();
    isCursorPending = isCursorPending || (isPlaying() && text->hasFocus());
    refreshSoon();
}

void AnimationEditorPrivate::refreshSoon()
{
    isStale = true;
    if (!isRefreshPending) {
        isRefreshPending = true;
        QTimer::singleShot(0, this, [this] {
            isRefreshPending = false;
            refreshIfStale();
        });
    }
}

void AnimationEditorPrivate::refreshIfStale()
{
    if (isStale) {
        refresh();
    }
}

/// Shows the current text, with the same animation and frame if they still exist. With
/// `followsCursor`, a text that has the keyboard focus decides which frame is shown. After an edit
/// by this editor it is false: then the text cursor moves to the frame instead.
void AnimationEditorPrivate::refresh(bool followsCursor)
{
    const CodeDocument* document = editor->document();
    isStale = true;
    if (inputs > 0 || (document && document->isCodeBeingChanged())) {
        return;
    }
    findAnimation();
    if (!editor->isActive()) {
        return;
    }
    isStale = false;
    if (animationCount() != shownCount) {
        editor->animationCountChanged();
    }
    fillAnimation();
    const QWidget* text = editor->codeWorkspace()->editor();
    if (followsCursor && isLinked() && !isPlaying() && text->hasFocus() && isTextShown()) {
        followLine(editor->codeWorkspace()->editor()->textCursor().blockNumber());
    }
    // During playback the tick alone decides which frame is shown.
    if (isPlaying()) {
        showFrame(followed.ticks().frameAt(timeLine->currentTick()));
    } else {
        fillFrame();
    }
    updateOnionRange();
}

/// If the animation is gone, takes the one that is now at its index in the list.
void AnimationEditorPrivate::findAnimation()
{
    if (!animations) {
        followed.setAnimation(nullptr);
        return;
    }
    AnimationCode* found = currentAnimation();
    if (found) {
        const int index = animationIndex();
        if (index != animations->currentIndex()) {
            animations->setCurrent(index);
        }
        return;
    }
    const int index = qBound(0, animations->currentIndex(), qMax(animationCount() - 1, 0));
    found = animations->at(unsigned(index));
    if (found) {
        animations->setCurrent(index);
    }
    followed.setAnimation(found);
    frameLine = {};
    strip.forget();
}

void AnimationEditorPrivate::activatePanel()
{
    if (!editor->isActive()) {
        host->activateEditor(editor);
    }
}

void AnimationEditorPrivate::selPosChanged(int index)
{
    if (updating > 0) {
        return;
    }
    activatePanel();
    commitFields();
    stop();
    showAnimation(index);
    updateCurrLine();
}

/// Playback continues from that frame: setting the tick is enough.
void AnimationEditorPrivate::frameSelPosChanged(int index)
{
    if (updating > 0 || !currentAnimation()) {
        return;
    }
    if (isPlaying() && followed.frame(index)) {
        timeLine->setCurrentTick(unsigned(followed.ticks().firstTick(index)));
        refresh();  // a frame of 0 ticks is skipped; resets the slider
        return;
    }
    commitFields();
    showFrame(index);
    updateCurrLine();
}

/// Shows the frame of it that was shown last. An index out of range shows nothing.
void AnimationEditorPrivate::showAnimation(int index)
{
    AnimationCode* chosen = animations ? animations->at(unsigned(index)) : nullptr;
    if (animations) {
        animations->setCurrent(index);
    }
    followed.setAnimation(chosen);
    frameLine = {};
    strip.forget();
    fillAnimation();
    showFrame(frameIndex());
    editor->animationChanged(currentAnimation());
}

void AnimationEditorPrivate::showFrame(int index)
{
    keepFrame(index);
    fillFrame();
}

void AnimationEditorPrivate::keepFrame(int index)
{
    AnimationCode* shown = currentAnimation();
    const FrameCode* chosen = followed.frame(index);
    if (shown && chosen) {
        shown->setCurrentFrame(index);
        frameLine = QTextCursor(chosen->block());
    }
}

void AnimationEditorPrivate::refreshAt(int frame)
{
    keepFrame(frame);
    editor->animationCodeChanged(false, false);
}

void AnimationEditorPrivate::fillAnimation()
{
    const Guard guard(&updating);
    const AnimationCode* shown = currentAnimation();
    const int index = animationIndex();
    emit setSelPos(qMax(index, 0));
    emit setPosText(shown ? AnimationEditor::tr("%1 / %2").arg(QString::number(index + 1),
                                                               QString::number(animationCount()))
                          : AnimationEditor::tr("0 / 0"));
    updateFrameRange();
    codeWindow.follow(currentAnimation());
    if (timeLine) {
        timeLine->setVisible(shown);
    }
}

/// Updates everything that depends on the shown frame.
void AnimationEditorPrivate::fillFrame()
{
    const int index = frameIndex();
    FrameCode* shown = followed.frame(index);
    if (shown) {
        currentAnimation()->setCurrentFrame(index);
        frameLine = QTextCursor(shown->block());
    }
    {
        const Guard guard(&updating);
        emit setFrameSelPos(qMax(index, 0));
        fillFields(shown);
    }
    const FrameTicks& ticks = followed.ticks();
    emit setFramePosText(shown ? AnimationEditor::tr("%1 / %2 - %3 ticks")
                                     .arg(QString::number(index + 1), QString::number(frameCount()),
                                          QString::number(ticks.endTick(index)))
                               : AnimationEditor::tr("0 / 0"));
    loopIndex = ticks.loopFrame();
    nextIndex = next(index);
    updateEnabled();
    preparePreview();
    editor->frameChanged(shown);
    showPreviewBoxes();
    fillBox();
    if (!shown) {
        renderer->setContactBoxes(ContactBoxCode::Attack, nullptr);
        renderer->setContactBoxes(ContactBoxCode::Collision, nullptr);
    }
    setTick(index);
    takeSprite();
    fillSkins();
    renderer->Renderer::update();
    if (timeLine) {
        timeLine->update();
    }
    emit editor->shownChanged();
}

/// Keeps a tick in the middle of the frame.
void AnimationEditorPrivate::setTick(int frame)
{
    if (!timeLine || playing > 0 || isPlaying()) {
        return;
    }
    const FrameTicks& ticks = followed.ticks();
    if (frame < 0 || ticks.frameAt(timeLine->currentTick()) != frame) {
        const Guard guard(&playing);
        frameTick = 0;
        timeLine->setCurrentTick(frame < 0 ? 0 : unsigned(ticks.firstTick(frame)));
    }
}

void AnimationEditorPrivate::updateRange()
{
    const Guard guard(&updating);
    shownCount = animationCount();
    setRange(widget<QAbstractSlider>("anim_sel"), shownCount);
    updateOnionRange();
}

void AnimationEditorPrivate::updateFrameRange()
{
    const Guard guard(&updating);
    setRange(widget<QAbstractSlider>("anim_frame_sel"), frameCount());
}

void AnimationEditorPrivate::updateEnabled()
{
    const bool hasFrame = !isPlaying() && frameIndex() >= 0;
    const bool isCodeOpen = codeWindow.isOpen();
    const Enabled now{currentAnimation() != nullptr, hasFrame, hasFrame && !isCodeOpen,
                      hasFrame && hasExtra};
    if (now.animation != isEnabled.animation || now.frame != isEnabled.frame ||
        now.frameNC != isEnabled.frameNC || now.frameExtra != isEnabled.frameExtra) {
        tellEnabled(now);
    }
}

void AnimationEditorPrivate::tellEnabled(const Enabled& now)
{
    isEnabled = now;
    emit enabled(now.animation);
    emit frameEnabled(now.frame);
    emit frameEnabledNC(now.frameNC);
    emit frameEnabledExtra(now.frameExtra);
    if (!now.frameNC) {
        leaveDrawing();
    }
}

QString AnimationEditorPrivate::frameTitle(const QString& text) const
{
    return text.arg(frameIndex() + 1);
}

/// Wraps around, like playback.
void AnimationEditorPrivate::prevFrame()
{
    const int count = frameCount();
    if (count > 0) {
        frameSelPosChanged((frameIndex() + count - 1) % count);
    }
}

void AnimationEditorPrivate::nextFrame()
{
    const int count = frameCount();
    if (count > 0) {
        frameSelPosChanged((frameIndex() + 1) % count);
    }
}

void AnimationEditorPrivate::prevAnim()
{
    if (animationIndex() > 0) {
        selPosChanged(animationIndex() - 1);
    }
}

void AnimationEditorPrivate::nextAnim()
{
    if (animationIndex() + 1 < animationCount()) {
        selPosChanged(animationIndex() + 1);
    }
}

/// The stage is about to use nodes, so they must match the current text.
void AnimationEditorPrivate::inputComes()
{
    refreshIfStale();
    if (inputs++ == 0) {
        revision = editor->document() ? editor->document()->revision() : 0;
    }
}

void AnimationEditorPrivate::inputTaken()
{
    if (--inputs > 0) {
        return;
    }
    refreshIfStale();
    if (editor->document() && editor->document()->revision() != revision) {
        updateCurrLine();
    }
}

}  // namespace Zorv
