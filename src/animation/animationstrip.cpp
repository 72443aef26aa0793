#include "animation/animationstrip_p.h"

#include "animation/animationeditor_p.h"
#include "animation/edits/frameorder.h"
#include "animation/edits/framevalues.h"
#include "animation/spritedrag.h"
#include "animation/timeline/timelinewidget.h"
#include "code/codedoc/animations.h"

#include <QScopedValueRollback>

#include <algorithm>
#include <limits>
#include <numeric>

namespace Zorv {

AnimationStrip::AnimationStrip(AnimationEditorPrivate* editor) : m_editor(editor)
{
    connect(editor->timeLine, &TimeLineWidget::selectionChanged, this, &AnimationStrip::keep);
}

int AnimationStrip::count() const
{
    return m_editor->followed.ticks().frameCount();
}

TimeLineCells::Cell AnimationStrip::at(int index) const
{
    const FrameTicks& ticks = m_editor->followed.ticks();
    return {unsigned(ticks.firstTick(index)), ticks.delay(index)};
}

int AnimationStrip::indexAt(unsigned int tick) const
{
    const FrameTicks& ticks = m_editor->followed.ticks();
    const bool isBehind = ticks.total() >= 0 && tick >= unsigned(ticks.total());
    return isBehind ? -1 : ticks.frameAt(tick);
}

bool AnimationStrip::isEditable() const
{
    return m_editor->currentAnimation() && !m_editor->isPlaying();
}

bool AnimationStrip::setLengths(const QVector<int>& indexes, const QVector<int>& lengths)
{
    const double most = std::min<double>(m_editor->longestTime(), std::numeric_limits<int>::max());
    QVector<FrameTime> times;
    for (int i = 0; i < indexes.size(); ++i) {
        times.append({indexes.at(i), std::min(lengths.at(i), int(most))});
    }
    m_editor->commitFields();
    const EditCount count = setTimes(m_editor->animations, m_editor->animationIndex(), times);
    m_editor->editor->animationCodeChanged(false, false);
    return count.changed > 0;
}

/// Keeps showing the same frame at its new index.
bool AnimationStrip::move(const QVector<int>& indexes, int target)
{
    m_editor->commitFields();
    const int shown = m_editor->frameIndex();
    const int first = moveFrames(m_editor->animations, m_editor->animationIndex(), indexes, target);
    if (first < 0) {
        return false;
    }
    const auto place = std::lower_bound(indexes.begin(), indexes.end(), shown);
    const int before = int(place - indexes.begin());
    const bool isMoved = place != indexes.end() && *place == shown;
    const int rest = shown - before;
    m_editor->refreshAt(isMoved ? first + before : rest + (rest < first ? 0 : indexes.size()));
    return true;
}

bool AnimationStrip::accepts(const QMimeData* data) const
{
    return !draggedSprites(data).isEmpty();
}

void AnimationStrip::drop(const QMimeData* data, int index)
{
    const QVector<SpriteNumber> sprites = draggedSprites(data);
    const int before = count();
    m_editor->editor->addSprites(index, sprites);
    if (count() == before + sprites.size()) {
        QVector<int> added(sprites.size());
        std::iota(added.begin(), added.end(), index);
        m_editor->timeLine->setSelectedCells(added);
    }
}

QVector<int> AnimationStrip::selectedFrames() const
{
    const int shown = m_editor->frameIndex();
    const QVector<int> selected =
        m_editor->timeLine ? m_editor->timeLine->selectedCells() : QVector<int>();
    return !selected.isEmpty() || shown < 0 ? selected : QVector<int>{shown};
}

void AnimationStrip::follow()
{
    if (!m_editor->timeLine) {
        return;
    }
    const int shown = m_editor->frameIndex();
    if (m_editor->isPlaying()) {
        m_shown = shown;
        m_hasPlayed = true;
        return;
    }
    QVector<int> selected = m_selected;
    bool isOther = m_shown != shown || m_hasPlayed;
    if (m_isMatching && revision() != m_revision) {
        // The line of the shown frame may have been removed and restored. Only a frame that was not
        // there before counts as another one.
        const QVector<int> places = m_match.placesIn(FrameMatch(m_editor->currentAnimation()));
        std::transform(selected.begin(), selected.end(), selected.begin(),
                       [&places](int frame) { return places.value(frame, -1); });
        selected.removeAll(-1);
        isOther = !places.contains(shown);
    }
    const bool isLeft = isOther && !selected.contains(shown);
    if (selected.isEmpty() || (isLeft && !(m_hasPlayed && selected.size() > 1))) {
        selected = shown < 0 ? QVector<int>() : QVector<int>{shown};
    }
    m_shown = shown;
    m_hasPlayed = false;
    m_editor->timeLine->setSelectedCells(selected);
    keep();
}

void AnimationStrip::forget()
{
    m_shown = -1;
    m_revision = -1;
    m_selected.clear();
    m_isMatching = false;
    if (m_editor->timeLine) {
        m_editor->timeLine->setSelectedCells({});
        m_editor->timeLine->setLoopRange({});
    }
}

/// Matching reads every line, so it is skipped when only the shown frame is selected: the editor
/// follows that one itself.
void AnimationStrip::keep()
{
    if (m_isKeeping) {
        return;
    }
    const QScopedValueRollback<bool> keeping(m_isKeeping, true);
    TimeLineWidget* strip = m_editor->timeLine;
    // A strip without a visible row has no selection.
    if (strip->selectedCells().isEmpty() && m_shown >= 0 && m_shown < count()) {
        strip->setSelectedCells({m_shown});
    }
    m_selected = strip->selectedCells();
    m_isMatching = m_selected != QVector<int>{m_shown};
    if (m_isMatching && revision() != m_revision) {
        m_match = FrameMatch(m_editor->currentAnimation());
        m_revision = revision();
    }
}

int AnimationStrip::revision() const
{
    const CodeDocument* document = m_editor->editor->document();
    return document ? document->revision() : -1;
}

}  // namespace Zorv
