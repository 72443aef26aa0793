#pragma once

#include "animation/frameticks.h"
#include "code/codedoc/codedocument.h"
#include "zorv_export.h"

#include <QObject>
#include <QPointer>
#include <QTextCursor>

namespace Zorv {

class AnimationCode;
class Animations;
class FrameCode;

/// One animation of a document, found again after every edit.
///
/// Nodes die at any keystroke, so none is held: the animation is the one on a line that moves with
/// the text, or, if another stands there now, the first one with the "Identifier" that it had, in
/// the document's list of animations. Main thread only.
class ZORV_EXPORT FollowedAnimation : public QObject
{
    Q_OBJECT

public:
    explicit FollowedAnimation(QObject* parent = nullptr);
    ~FollowedAnimation() override;

    /// Null for none.
    void setAnimation(AnimationCode* animation);

    /// Null if there is none, or it has gone from the text. Good until the next edit.
    AnimationCode* animation() const;

    /// A frame of it; null outside of the list. Good until the next edit.
    FrameCode* frame(int index) const;
    int frameCount() const;

    /// Null for none, and once it is about to close.
    CodeDocument* document() const;

    /// When its frames stand, as of the last edit. Made once an edit, when it is asked for.
    const FrameTicks& ticks() const;

signals:
    /// Another animation, or the text has changed, or is about to close. As with
    /// `CodeDocument::codeChanged()` a slot must not edit.
    void changed();

private:
    void leave();
    void close();
    void follow();
    void find();
    Animations* list() const;

    QPointer<CodeDocument> m_document;
    QTextCursor m_head;
    const void* m_known = nullptr;  // the node as it was, only to be compared
    QString m_identifier;
    mutable FrameTicks m_ticks;
    mutable bool m_ticksKnown = false;
};

}  // namespace Zorv
