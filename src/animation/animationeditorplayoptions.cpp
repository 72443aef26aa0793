#include "animation/animationeditor_p.h"
#include "animation/framefacts.h"
#include "animation/timeline/timelinewidget.h"

#include <QAction>
#include <QTimer>

namespace Zorv {

namespace {

constexpr int HalfSpeed = 2;
constexpr int QuarterSpeed = 4;

// Postpones the computation while the user types.
constexpr int FactsDelay = 50;  // milliseconds

QString ticksText(int ticks)
{
    return ticks < 0 ? QStringLiteral("\u221e") : QString::number(ticks);
}

QString textOf(const FrameFacts& facts)
{
    const QString total = ticksText(facts.total);
    if (!facts.isAttack) {
        return AnimationEditor::tr("total %1, no attack").arg(total);
    }
    const QString active = facts.pause == 0
                               ? ticksText(facts.active)
                               : AnimationEditor::tr("%1 with %2 between")
                                     .arg(ticksText(facts.active), ticksText(facts.pause));
    return AnimationEditor::tr("start %1, active %2, recovery %3, total %4; reach %5 px")
        .arg(ticksText(facts.start), active, ticksText(facts.recovery), total,
             QString::number(facts.reach));
}

}  // namespace

PlayOptions AnimationEditorPrivate::playOptions() const
{
    PlayOptions options;
    options.range = timeLine ? timeLine->loopRange() : std::nullopt;
    options.isRepeated = isRepeated;
    return options;
}

void AnimationEditorPrivate::playHere()
{
    startPlay(unsigned(followed.ticks().firstTick(frameIndex())));
}

void AnimationEditorPrivate::playHalfChanged(bool isOn)
{
    takeSlowness(isOn ? HalfSpeed : 1);
}

void AnimationEditorPrivate::playQuarterChanged(bool isOn)
{
    takeSlowness(isOn ? QuarterSpeed : 1);
}

void AnimationEditorPrivate::takeSlowness(int now)
{
    if (updating > 0) {
        return;
    }
    const Guard guard(&updating);
    slowness = now;
    setChecked("anim_play_half", slowness == HalfSpeed);
    setChecked("anim_play_quarter", slowness == QuarterSpeed);
    if (timeLine && editor->isActive()) {
        timeLine->setSlowness(slowness);
    }
}

void AnimationEditorPrivate::playAgainChanged(bool isOn)
{
    isRepeated = isOn;
}

/// Reading all frames is expensive, so several edits in a row cause one update.
void AnimationEditorPrivate::showFactsSoon()
{
    if (!factsTimer) {
        factsTimer = new QTimer(this);
        factsTimer->setSingleShot(true);
        factsTimer->setInterval(FactsDelay);
        connect(factsTimer, &QTimer::timeout, this, &AnimationEditorPrivate::showFacts);
    }
    factsTimer->start();
}

void AnimationEditorPrivate::showFacts()
{
    const CodeDocument* document = editor->document();
    if (document && document->isCodeBeingChanged()) {
        showFactsSoon();
        return;
    }
    const AnimationCode* shown = currentAnimation();
    emit setFacts(shown ? textOf(editor->frameFacts(shown)) : QString());
}

}  // namespace Zorv
