#pragma once

#include "family/familydocument.h"
#include "family/stage/frameticks.h"

#include <QObject>
#include <QPointer>
#include <QTextCursor>

namespace Family {

class AnimationNode;
class FrameNode;

/// One animation of a document, found again after every edit.
///
/// Nodes die at any keystroke, so none is held: the animation is the one on a line that moves with
/// the text, or, if another stands there now, the first one with the identifier that it had. Main
/// thread only.
class FollowedAnimation : public QObject
{
    Q_OBJECT

public:
    explicit FollowedAnimation(QObject* parent = nullptr);
    ~FollowedAnimation() override;

    /// Null for none.
    void setAnimation(AnimationNode* animation);

    /// Null if there is none, or it has gone from the text. Good until the next edit.
    AnimationNode* animation() const;

    /// A frame of it; null outside of the list. Good until the next edit.
    FrameNode* frame(int index) const;
    int frameCount() const;

    /// Null for none, and once it is about to close.
    FamilyDocument* document() const;

    /// When its frames stand, as of the last edit.
    const FrameTicks& ticks() const;

signals:
    /// Another animation, or the text has changed, or is about to close. As with
    /// `Zorv::CodeDocument::codeChanged()` a slot must not edit.
    void changed();

private:
    void leave();
    void close();
    void follow();
    void find();

    QPointer<Zorv::CodeDocument> m_document;  // one of the family until it is about to close
    QTextCursor m_head;
    const void* m_known = nullptr;  // the node as it was, only to be compared
    QString m_identifier;
    mutable FrameTicks m_ticks;
    mutable bool m_ticksKnown = false;
};

}  // namespace Family
