#pragma once

#include "code/codedoc/codenodelist.h"
#include "code/codedoc/namedcode.h"
#include "code/codedoc/parentcode.h"

#include <QList>

namespace Zorv {

class FrameCode;

/// The head of an animation, with its frames. It becomes a child of the root by itself.
///
/// It adopts the frames that follow it in the chain, up to the next group or animation. When it is
/// destroyed, its frames go to the animation above it, in the same order, or have no parent.
class ZORV_EXPORT AnimationCode : public ParentCode, public NamedCode
{
public:
    explicit AnimationCode(CodeNode* previous);
    ~AnimationCode() override;

    /// "DisplayName", "Name", "Identifier".
    QStringList propertyNames() const override;

    /// The text of the animation, trimmed. Lines are separated by U+2029, as in
    /// `QTextCursor::selectedText()`.
    QString code() const;

    /// Replaces the text of the animation by `text`, trimmed, and two line ends.
    void setCode(const QString& text);

    /// The frames in order.
    QList<FrameCode*> frames() const;

    /// The number of frames, and the frame at an index (null if out of range). Logarithmic, whereas
    /// `frames()` copies the list.
    int frameCount() const;
    FrameCode* frame(int index) const;

    /// Removes a frame and its lines from the document. `index` is its index in `frames()`; does
    /// nothing if out of range.
    void removeFrame(unsigned index);

    /// Writes a new frame, from `frameTemplate()`, directly behind the line of the frame before it,
    /// so that it is at `index` or last. Returns the new frame. Returns null if there is no
    /// template, or if changes are not parsed at once (see "parseCode"). The animation node itself
    /// may be replaced.
    FrameCode* insertFrame(unsigned index);

    /// The lines of a new frame, without a line end after the last one. `before` is the previous
    /// frame; null for the first. Empty by default, so that no frame can be inserted.
    virtual QString frameTemplate(const FrameCode* before) const;

    /// The frame the user looked at last, so that an editor can go back to it; initially 0. May be
    /// behind the last frame. A node that replaces this one in the same line takes it over.
    int currentFrame() const { return m_currentFrame; }
    void setCurrentFrame(int index) { m_currentFrame = index; }

    /// The duration of one pass in ticks of 1/60 second; -1 if it never ends.
    virtual int duration() const = 0;

    /// The frame at which the animation loops; -1 if none is marked.
    virtual int loopFrame() const = 0;

    /// The line before the next group or animation. At the end of the chain, the number of lines.
    int lastLine() const override;

    /// The children are the frames and whatever else a parser inserts.
    int childCount() const override;
    int childIndex(CodeNode* child) const override;

    /// `index` must be valid; null if the list is empty.
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
    bool m_isMixed = false;  ///< has had children other than frames
};

}  // namespace Zorv
