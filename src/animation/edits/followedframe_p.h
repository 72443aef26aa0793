#pragma once

#include "animation/edits/editcount.h"
#include "animation/edits/frameplace.h"

#include "code/codedoc/animations.h"
#include "code/codedoc/codedocument.h"

#include <QCoreApplication>
#include <QTextCursor>

namespace Zorv {

class AnimationCode;

/// The titles of undo steps.
class EditText
{
    Q_DECLARE_TR_FUNCTIONS(Zorv::AnimationEdits)
};

/// Groups edits into one undo step while it exists.
class EditStep
{
public:
    EditStep(Animations* animations, const QString& title);
    ~EditStep();

private:
    Q_DISABLE_COPY(EditStep)
    Animations* m_animations;
};

/// A frame that is found again after every edit, by its line. Keep few of these: each edit has to
/// move every cursor of a document.
class FollowedFrame
{
public:
    FollowedFrame(const CodeDocument* document, int line);

    /// Null if the line no longer has a frame.
    FrameCode* get() const;

private:
    const CodeDocument* m_document;
    QTextCursor m_line;
};

/// Null if out of range.
AnimationCode* animationAt(const Animations* animations, int animation);

/// The valid indexes below `count`, ascending, without duplicates.
QVector<int> validPlaces(QVector<int> frames, int count);

/// The lines of the frames at these places, from top to bottom, without duplicates.
QVector<int> linesOf(const Animations* animations, const QVector<FramePlace>& places);

/// Calls `edit(FollowedFrame, i)` for the frames on these lines, from top to bottom. Edits above
/// move the lines below, so each line is shifted by the growth of the text so far. Returns the sum
/// of the results.
template <class Edit>
EditCount editFrames(Animations* animations, const QVector<int>& lines, const Edit& edit)
{
    EditCount sum;
    const CodeDocument* document = animations->document();
    const int before = document->blockCount();
    for (int i = 0; i < lines.size(); ++i) {
        const FollowedFrame frame(document, lines.at(i) + document->blockCount() - before);
        if (frame.get()) {
            sum += edit(frame, i);
        }
    }
    return sum;
}

}  // namespace Zorv
