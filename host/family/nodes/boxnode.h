#pragma once

#include <zorv/code/codedoc/contactboxcode.h>
#include <zorv/code/codedoc/valuecode.h>

namespace Family {

class FrameNode;

/// A line with one contact box, above the frame that it belongs to. It precedes that frame in the
/// chain of nodes and has no parent in the tree.
class BoxNode final : public Zorv::ValueCode, public Zorv::ContactBoxCode
{
public:
    BoxNode(Zorv::CodeNode* previous, bool attack, const QRect& rect);
    ~BoxNode() override;

    bool isAttack() const { return m_attack; }

    /// "attack" or "body".
    QString name() const override;

    /// Converts it to the other type; does nothing for another text.
    void setName(const QString& name) override;

    /// A list: left, top, right and bottom.
    QVariant value() const override;

    /// Takes a `QRect` or a list of four numbers.
    bool write(const QVariant& value) override;
    QString unsignedText(unsigned value) const override;

    QRect rect() const override;

    /// Edits only those numbers of the line that differ.
    void setRect(const QRect& rect) override;

    /// Null for a box without a frame after it.
    Zorv::ContactBoxesCode* boxes() const override;
    int line() const override;

    /// The frame that this box belongs to; null if there is none.
    FrameNode* frame() const;

    /// For the parser: same line, new rectangle.
    void update(const QRect& rect);

    void release() override;

    /// Counts changes of all boxes, frames and heads in the process. A frame that has read its
    /// boxes at the same count need not read them again.
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
