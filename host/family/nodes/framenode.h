#pragma once

#include "family/nodes/framedata.h"

#include <zorv/code/codedoc/framecode.h>

#include <memory>

namespace Family {

class FrameBoxes;

/// A frame line of an animation. Setters change the one token of the line that
/// they mean; an option is added in the order of the docs and leaves the line
/// when it goes back to its default.
class FrameNode final : public Zorv::FrameCode
{
public:
    FrameNode(Zorv::CodeNode* previous, const FrameData& data);
    ~FrameNode() override;

    const FrameData& data() const { return m_data; }

    /// "group,number".
    QVariant identifier() const override;

    /// Takes "group,number", a point, or a list of two numbers.
    void setIdentifier(const QVariant& identifier) override;
    int spriteGroup() const override;
    int spriteNumber() const override;
    void setSprite(int group, int number) override;
    Zorv::Sprite* sprite() const override;
    QPoint offset() const override;
    void setOffset(const QPoint& offset) override;
    int delay() const override;
    void setDelay(int ticks) override;
    QPointF scale() const override;
    void setScale(const QPointF& scale) override;
    double angle() const override;
    void setAngle(double degrees) override;
    Flip flip() const override;
    void setFlip(Flip flip) override;
    bool isLoopPoint() const override;
    void setLoopPoint(bool loopPoint) override;

    QVariant property(const QString& name) const override;
    void setProperty(const QString& name, const QVariant& value) override;

    /// The attack boxes if bit 0 of `type` is set, else the body boxes.
    Zorv::ContactBoxesCode* contactBoxes(Zorv::ContactBoxCode::BoxType type) const override;
    void boxesChanged() override;

    /// For the parser: the same line with other content. Tells the animation.
    void update(const FrameData& data);

    void release() override;

private:
    FrameBoxes* boxes(bool attack) const;

    FrameData m_data;
    mutable std::unique_ptr<FrameBoxes> m_attack;
    mutable std::unique_ptr<FrameBoxes> m_body;
};

}  // namespace Family
