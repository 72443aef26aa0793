#pragma once

#include <zorv/code/codedoc/contactboxescode.h>

#include <QVector>

namespace Family {

class BoxNode;
class FrameNode;

/// The boxes of one kind in front of a frame, read from the chain when asked.
class FrameBoxes final : public Zorv::ContactBoxesCode
{
public:
    FrameBoxes(FrameNode* frame, bool attack) : m_frame(frame), m_attack(attack) {}

    int count() const override;
    Zorv::ContactBoxCode* at(int index) const override;

    /// Writes a line behind the last box line in front of the frame, or right
    /// in front of the frame, with the indent of its neighbour.
    Zorv::ContactBoxCode* add(const QRect& rect) override;
    void remove(int index) override;
    Zorv::ContactBoxCode::BoxType type() const override;
    Zorv::FrameCode* frame() const override;
    Zorv::CodeDocument* document() const override;

    /// Read anew at the next question.
    void forget() { m_revision = 0; }

private:
    const QVector<BoxNode*>& read() const;

    FrameNode* m_frame;
    bool m_attack;
    mutable quint64 m_revision = 0;
    mutable QVector<BoxNode*> m_boxes;
};

}  // namespace Family
