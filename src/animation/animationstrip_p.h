#pragma once

#include "animation/framematch_p.h"
#include "animation/timeline/timelinecells.h"

#include <QObject>

namespace Zorv {

class AnimationEditorPrivate;

/// The frames of the shown animation as cells of the strip: turns actions there into edits of the
/// text.
///
/// Also keeps the selection. It survives edits as far as frames can be found again, and ends when a
/// frame outside of it is shown. Otherwise only the shown frame is selected.
class AnimationStrip : public QObject, public TimeLineCells
{
    Q_OBJECT

public:
    explicit AnimationStrip(AnimationEditorPrivate* editor);

    int count() const override;
    Cell at(int index) const override;
    int indexAt(unsigned int tick) const override;
    bool isEditable() const override;
    bool setLengths(const QVector<int>& indexes, const QVector<int>& lengths) override;
    bool move(const QVector<int>& indexes, int target) override;
    bool accepts(const QMimeData* data) const override;
    void drop(const QMimeData* data, int index) override;

    /// Just the shown frame unless others are selected; empty without a frame.
    QVector<int> selectedFrames() const;

    /// Updates the selection to what is shown now.
    void follow();

    /// Another animation is shown: drops all state about the last one.
    void forget();

private:
    void keep();
    int revision() const;

    AnimationEditorPrivate* m_editor;
    QVector<int> m_selected;    // as last set by the user
    FrameMatch m_match;         // the frames at the time of `m_selected`
    int m_revision = -1;        // of the text
    bool m_isMatching = false;  // other frames than the shown one are selected
    bool m_hasPlayed = false;   // since the last `follow()`
    bool m_isKeeping = false;
    int m_shown = -1;  // the frame at the last `follow()`
};

}  // namespace Zorv
