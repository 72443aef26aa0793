#pragma once

#include <zorv/code/codedoc/animationcode.h>

namespace Family {

/// The head line of an animation: `animation 200 "Light punch"`.
class AnimationNode final : public Zorv::AnimationCode
{
public:
    AnimationNode(Zorv::CodeNode* previous, const QString& identifier, const QString& name);
    ~AnimationNode() override;

    /// The number or word after `animation`.
    QString identifier() const { return m_identifier; }

    /// Edits the line. Does nothing for an invalid identifier.
    void setIdentifier(const QString& identifier);

    /// The quoted text; empty if there is none.
    QString name() const override;

    /// The identifier, and the name if there is one: "200 Light punch".
    QString displayName() const override;

    /// Edits the quoted text; an empty name removes it.
    void setName(const QString& name) override;

    /// Includes the comments directly above while they travel, see `CommentTravel`.
    int firstLine() const override;

    int duration() const override;
    int loopFrame() const override;

    /// A frame that looks like `before`, without its boxes and with a delay of 10 ticks.
    QString frameTemplate(const Zorv::FrameCode* before) const override;

    QVariant property(const QString& name) const override;
    void setProperty(const QString& name, const QVariant& value) override;

    /// For the parser: same line, new content. Notifies the document.
    void update(const QString& identifier, const QString& name);

    void childChanged(Zorv::CodeNode* child) override;
    void release() override;

private:
    QString m_identifier;
    QString m_name;
};

}  // namespace Family
