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

    /// Takes a frame and its lines out of the document; `index` is its place among
    /// `frames()`, nothing outside of them.
    void removeFrame(unsigned index);

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
    bool m_isMixed = false;  ///< has had children that are no frames
};

}  // namespace Zorv
