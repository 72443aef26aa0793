#include "animation/animationeditor_p.h"
#include "animation/timeline/timelinewidget.h"
#include "code/codedoc/animationcode.h"
#include "code/codedoc/framecode.h"
#include "core/interface.h"
#include "editors/code/codeeditor.h"
#include "editors/code/codeworkspace.h"

#include <QAction>
#include <QGuiApplication>

#include <climits>

namespace Zorv {

namespace {

constexpr unsigned TicksPerSecond = 60;

// Frame ticks are capped here, but the clock of the strip runs on.
constexpr unsigned LastTick = INT_MAX;
constexpr int SpeedField = 4;

// An open menu stops the clock. Without a restart it would catch up by running fast.
constexpr qint64 LongestStall = 250;  // milliseconds

}  // namespace

bool AnimationEditorPrivate::isPlaying() const
{
    return timeLine && timeLine->isPlaying() && editor->isActive();
}

/// The frame after `index` in playback, through the loop point; -1 for none.
int AnimationEditorPrivate::next(int index) const
{
    const int count = frameCount();
    if (index + 1 < count) {
        return index + 1;
    }
    const int loop = qMax(followed.ticks().loopFrame(), 0);
    return loop < count ? loop : -1;
}

void AnimationEditorPrivate::setPlayChecks(bool isOn)
{
    const Guard guard(&updating);
    setChecked("anim_play", isOn);
    setChecked("anim_stop", !isOn);
}

/// With Shift, starts at the shown frame.
void AnimationEditorPrivate::playChanged(bool)
{
    if (QGuiApplication::keyboardModifiers() & Qt::ShiftModifier) {
        playHere();
    } else {
        startPlay(0);
    }
}

/// Starts at `wanted`, or at the start of a looped range that does not contain it.
void AnimationEditorPrivate::startPlay(unsigned wanted)
{
    if (updating > 0 || isPlaying()) {
        setPlayChecks(isPlaying());
        return;
    }
    commitFields();
    activatePanel();
    refreshIfStale();
    if (!timeLine || !currentFrame()) {
        setPlayChecks(false);
        return;
    }
    setPlayChecks(true);
    {
        const Guard guard(&playing);
        const FrameTicks& ticks = followed.ticks();
        const unsigned tick = playStart(ticks, playOptions(), wanted);
        timeLine->setCurrentTick(tick);
        showFrame(tick == 0 ? 0 : ticks.frameAt(tick));
    }
    frameTick = 0;
    isCursorPending = false;
    sinceTick.start();
    timeLine->play();
    updateEnabled();
}

void AnimationEditorPrivate::stop()
{
    if (isPlaying()) {
        stopChanged(true);
    }
}

void AnimationEditorPrivate::stopChanged(bool)
{
    if (updating > 0) {
        return;
    }
    setPlayChecks(false);
    frameTick = 0;
    nextIndex = next(frameIndex());
    if (timeLine) {
        timeLine->stop();
    }
    updateEnabled();
    editor->playStopped();
    refresh(false);
    if (isCursorPending && isLinked() && isTextShown()) {
        followLine(editor->codeWorkspace()->editor()->textCursor().blockNumber());
    } else {
        updateCurrLine();
    }
    isCursorPending = false;
}

void AnimationEditorPrivate::playAnimation(unsigned int tick)
{
    if (playing > 0 || !editor->isActive()) {
        return;
    }
    if (isPlaying()) {
        {
            const Guard guard(&playing);
            refreshIfStale();
        }
        playTick(tick);
        return;
    }
    if (!currentAnimation()) {
        return;
    }
    commitFields();
    const Guard guard(&playing);
    const FrameTicks& ticks = followed.ticks();
    const int index = ticks.frameAt(tick);
    frameTick = int(qMin(tick, LastTick)) - ticks.firstTick(index);
    showFrame(index);
    if (frameTick > 0) {
        editor->interpolateFrame(followed.frame(nextIndex), frameTick);
    }
}

/// The tick alone decides which frame is shown. After the last one the clock is set back to the
/// loop point and reports that tick in turn; see `playStep()`.
void AnimationEditorPrivate::playTick(unsigned tick)
{
    if (sinceTick.restart() > LongestStall) {
        timeLine->play();  // emits this tick again
        return;
    }
    const FrameTicks& ticks = followed.ticks();
    const PlayStep step = playStep(ticks, playOptions(), tick);
    if (step.act == PlayStep::Stop) {
        stop();
        return;
    }
    if (step.act == PlayStep::Jump) {
        timeLine->setCurrentTick(step.target);
        return;
    }
    const int index = ticks.frameAt(tick);
    frameTick = int(qMin(tick, LastTick)) - ticks.firstTick(index);
    if (index != frameIndex()) {
        const Guard guard(&playing);
        showFrame(index);
    }
    if (step.act == PlayStep::ShowAndStop) {
        stop();
        return;
    }
    if (FrameCode* following = followed.frame(nextIndex)) {
        editor->interpolateFrame(following, frameTick);
    }
    ++frameTick;
    showSpeed(tick);
}

void AnimationEditorPrivate::showSpeed(unsigned tick)
{
    if (tick % TicksPerSecond == 0) {
        host->showStatus(SpeedField, AnimationEditor::tr("%1 FPS").arg(
                                         QString::number(double(timeLine->currentFPS()))));
    }
}

}  // namespace Zorv
