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
/// Any keystroke can destroy nodes, so this class holds none. It remembers a line that moves with
/// the text. If another animation is now on that line, it takes the first one in the document's
/// list with the old "Identifier". Main thread only.
class ZORV_EXPORT FollowedAnimation : public QObject
{
    Q_OBJECT

public:
    explicit FollowedAnimation(QObject* parent = nullptr);
    ~FollowedAnimation() override;

    /// Null for none.
    void setAnimation(AnimationCode* animation);

    /// Null if none is set, or if it is no longer in the text. Valid until the next edit.
    AnimationCode* animation() const;

    /// A frame of the animation; null if `index` is out of range. Valid until the next edit.
    FrameCode* frame(int index) const;
    int frameCount() const;

    /// Null for none, and as soon as the document is about to close.
    CodeDocument* document() const;

    /// The ticks of its frames after the last edit. Computed on demand, once per edit.
    const FrameTicks& ticks() const;

signals:
    /// Another animation is set, the text has changed, or the document is about to close. A slot
    /// must not edit, as with `CodeDocument::codeChanged()`.
    void changed();

private:
    void leave();
    void close();
    void follow();
    void find();
    Animations* list() const;

    QPointer<CodeDocument> m_document;
    QTextCursor m_head;
    const void* m_known = nullptr;  // the last node found; may be dangling, only compared
    QString m_identifier;
    mutable FrameTicks m_ticks;
    mutable bool m_ticksKnown = false;
};

}  // namespace Zorv
