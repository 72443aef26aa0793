#pragma once

#include <zorv/code/codedoc/contactboxcode.h>
#include <zorv/code/codedoc/valuecode.h>

namespace Family {

class FrameNode;

/// A line with one contact box, in front of the frame that it belongs to. In
/// the chain it stands before that frame; it has no parent in the tree.
class BoxNode final : public Zorv::ValueCode, public Zorv::ContactBoxCode
{
public:
    BoxNode(Zorv::CodeNode* previous, bool attack, const QRect& rect);
    ~BoxNode() override;

    bool isAttack() const { return m_attack; }

    /// "attack" or "body".
    QString name() const override;

    /// Makes it a box of the other kind; nothing for another text.
    void setName(const QString& name) override;

    /// A list of left, top, right and bottom.
    QVariant value() const override;

    /// Takes a `QRect` or a list of four numbers.
    bool write(const QVariant& value) override;
    QString unsignedText(unsigned value) const override;

    QRect rect() const override;

    /// Edits the numbers of the line that differ.
    void setRect(const QRect& rect) override;

    /// Null for a box without a frame behind it.
    Zorv::ContactBoxesCode* boxes() const override;
    int line() const override;

    /// The frame behind the box and others, null if there is none.
    FrameNode* frame() const;

    /// For the parser: the same line with another rectangle.
    void update(const QRect& rect);

    void release() override;

    /// Counts every change to any box, frame or head of the process. A frame
    /// that has read its boxes at the same count need not read again.
    static quint64 revision();
    static void raiseRevision();

private:
    int m_left;
    int m_top;
    int m_right;
    int m_bottom;
    bool m_attack;
};

}  // namespace Family
