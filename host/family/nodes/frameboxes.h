#pragma once

#include <zorv/code/codedoc/contactboxescode.h>

#include <QVector>

namespace Family {

class BoxNode;
class FrameNode;

/// The boxes of one type above a frame, read from the chain of nodes on demand.
class FrameBoxes final : public Zorv::ContactBoxesCode
{
public:
    FrameBoxes(FrameNode* frame, bool attack) : m_frame(frame), m_attack(attack) {}

    int count() const override;
    Zorv::ContactBoxCode* at(int index) const override;

    /// Inserts a line after the last box line above the frame, or directly above the frame, with
    /// the indentation of its neighbour.
    Zorv::ContactBoxCode* add(const QRect& rect) override;
    void remove(int index) override;
    Zorv::ContactBoxCode::BoxType type() const override;
    Zorv::FrameCode* frame() const override;
    Zorv::CodeDocument* document() const override;

    /// Forces a new read at the next query.
    void forget() { m_revision = 0; }

private:
    const QVector<BoxNode*>& read() const;

    FrameNode* m_frame;
    bool m_attack;
    mutable quint64 m_revision = 0;
    mutable QVector<BoxNode*> m_boxes;
};

}  // namespace Family
