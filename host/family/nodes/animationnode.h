#pragma once

#include <zorv/code/codedoc/animationcode.h>

namespace Family {

/// The head line of an animation: `animation 200 "Light punch"`.
class AnimationNode final : public Zorv::AnimationCode
{
public:
    AnimationNode(Zorv::CodeNode* previous, const QString& identifier, const QString& name);
    ~AnimationNode() override;

    /// The number or word behind `animation`.
    QString identifier() const { return m_identifier; }

    /// Edits the line. Nothing for a text that is no identifier.
    void setIdentifier(const QString& identifier);

    /// The text in quotes, empty if there is none.
    QString name() const override;

    /// The identifier, and the name if there is one: "200 Light punch".
    QString displayName() const override;

    /// Edits the text in quotes; an empty name takes it away.
    void setName(const QString& name) override;

    /// With the comments directly above while they travel, see `CommentTravel`.
    int firstLine() const override;

    int duration() const override;
    int loopFrame() const override;

    /// Looks as the frame in front of it, without its boxes, and stands for 10 ticks.
    QString frameTemplate(const Zorv::FrameCode* before) const override;

    QVariant property(const QString& name) const override;
    void setProperty(const QString& name, const QVariant& value) override;

    /// For the parser: the same line with other content. Tells the document.
    void update(const QString& identifier, const QString& name);

    void childChanged(Zorv::CodeNode* child) override;
    void release() override;

private:
    QString m_identifier;
    QString m_name;
};

}  // namespace Family
