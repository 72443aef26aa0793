#pragma once

#include "animation/edits/editcount.h"
#include "animation/edits/frameplace.h"

#include "code/codedoc/animations.h"
#include "code/codedoc/codedocument.h"

#include <QCoreApplication>
#include <QTextCursor>

namespace Zorv {

class AnimationCode;

/// The titles of the steps of undo.
class EditText
{
    Q_DECLARE_TR_FUNCTIONS(Zorv::AnimationEdits)
};

/// One step of undo, as long as it lives.
class EditStep
{
public:
    EditStep(Animations* animations, const QString& title);
    ~EditStep();

private:
    Q_DISABLE_COPY(EditStep)
    Animations* m_animations;
};

/// A frame that is found again after every edit, by its line. Each edit moves every cursor of a
/// document, so there should never be many of them.
class FollowedFrame
{
public:
    FollowedFrame(const CodeDocument* document, int line);

    /// Null if the line has no frame any more.
    FrameCode* get() const;

private:
    const CodeDocument* m_document;
    QTextCursor m_line;
};

/// Null outside of the list.
AnimationCode* animationAt(const Animations* animations, int animation);

/// Those of `frames` that are places among `count`, each once and in their order.
QVector<int> validPlaces(QVector<int> frames, int count);

/// The lines of the frames at these places, each once and from the top down.
QVector<int> linesOf(const Animations* animations, const QVector<FramePlace>& places);

/// Calls `edit(FollowedFrame, i)` for the frames of these lines, from the top down: what has been
/// edited stands above, so the lines below have moved by what the text has grown. Gives the sum of
/// the results.
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
