#pragma once

#include "code/codedoc/codenodelist.h"
#include "code/codedoc/namedcode.h"
#include "code/codedoc/parentcode.h"

#include <QList>

namespace Zorv {

class FrameCode;

/// The head of an animation, with frames. It joins the root by itself.
///
/// It adopts the frames that follow it in the chain, up to the next group or
/// animation. When it dies, its frames go in their order to the animation above
/// it, or are left without a parent.
class ZORV_EXPORT AnimationCode : public ParentCode, public NamedCode
{
public:
    explicit AnimationCode(CodeNode* previous);
    ~AnimationCode() override;

    /// "DisplayName", "Name", "Identifier".
    QStringList propertyNames() const override;

    /// The text of the animation, trimmed; lines are divided by U+2029, as
    /// `QTextCursor::selectedText()` gives them.
    QString code() const;

    /// Replaces the text of the animation by `text`, trimmed, and two line ends.
    void setCode(const QString& text);

    /// The frames in their order.
    QList<FrameCode*> frames() const;

    /// Their number, and the one at a place, null outside of them. Logarithmic, where `frames()`
    /// copies the list.
    int frameCount() const;
    FrameCode* frame(int index) const;

    /// Takes a frame and its lines out of the document; `index` is its place among
    /// `frames()`, nothing outside of them.
    void removeFrame(unsigned index);

    /// Writes a new frame, by `frameTemplate()`, right behind the line of the frame in front of
    /// it: it stands at `index`, or behind the last one. Gives it; null for a grammar without a
    /// template, and while the lines of a change are not parsed at once ("parseCode"). The
    /// animation itself may be another node afterwards.
    FrameCode* insertFrame(unsigned index);

    /// The lines of a new frame, with no line end behind the last; `before` is the frame in
    /// front of it, null for the first. As it stands here it is empty: no frame can be inserted.
    virtual QString frameTemplate(const FrameCode* before) const;

    /// The frame that a person looked at last, so that they come back to it; 0 at first. It may
    /// be behind the last one by now. A node that takes the place of this one in the same line
    /// takes it over.
    int currentFrame() const { return m_currentFrame; }
    void setCurrentFrame(int index) { m_currentFrame = index; }

    /// The whole time of one pass in ticks of 1/60 second; -1 if it never ends.
    virtual int duration() const = 0;

    /// The frame at which the animation starts again, -1 if none is marked.
    virtual int loopFrame() const = 0;

    /// The line before the next group or animation; at the end of the chain
    /// the number of lines.
    int lastLine() const override;

    /// The children are the frames, and what else a grammar inserts.
    int childCount() const override;
    int childIndex(CodeNode* child) const override;

    /// `index` must be inside the list; null if the list is empty.
    CodeNode* childAt(unsigned index) const override;
    void insertChild(CodeNode* child, unsigned index) override;
    void removeChild(CodeNode* child) override;

protected:
    void handOver() override;

private:
    friend class FrameCode;

    void adopt();
    int indexOfFrame(const FrameCode* frame) const;

    CodeNodeList m_children;
    int m_currentFrame = 0;
    bool m_isMixed = false;  ///< has had children that are no frames
};

}  // namespace Zorv
