#pragma once

#include "animation/framematch_p.h"
#include "animation/timeline/timelinecells.h"

#include <QObject>

namespace Zorv {

class AnimationEditorPrivate;

/// The frames of the shown animation as cells of the strip: what a person does there becomes edits
/// of the text.
///
/// It also keeps the selection: through edits, as far as frames can be found again, and until
/// another frame than a selected one is shown. The shown frame alone is selected otherwise.
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

    /// The shown one alone unless others are selected; none without a frame.
    QVector<int> selectedFrames() const;

    /// Brings the selection in line with what is shown now.
    void follow();

    /// Another animation is shown: nothing of the last one counts.
    void forget();

private:
    void keep();
    int revision() const;

    AnimationEditorPrivate* m_editor;
    QVector<int> m_selected;    // as the person left them
    FrameMatch m_match;         // the frames that these were then
    int m_revision = -1;        // of the text
    bool m_isMatching = false;  // others than the shown frame are selected
    bool m_hasPlayed = false;   // since the selection was followed
    bool m_isKeeping = false;
    int m_shown = -1;  // the frame, as it was followed last
};

}  // namespace Zorv
