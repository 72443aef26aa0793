#pragma once

#include "family/nodes/framedata.h"

#include <zorv/code/codedoc/framecode.h>

#include <memory>

namespace Family {

class FrameBoxes;

/// A frame line of an animation. A setter changes only its own token of the line. An option that
/// becomes default is removed; a new one is inserted in the order of the documentation.
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

    /// The attack boxes if bit 0 of `type` is set, otherwise the body boxes.
    Zorv::ContactBoxesCode* contactBoxes(Zorv::ContactBoxCode::BoxType type) const override;
    void boxesChanged() override;

    /// For the parser: same line, new content. Notifies the animation.
    void update(const FrameData& data);

    void release() override;

private:
    FrameBoxes* boxes(bool attack) const;

    FrameData m_data;
    mutable std::unique_ptr<FrameBoxes> m_attack;
    mutable std::unique_ptr<FrameBoxes> m_body;
};

}  // namespace Family
