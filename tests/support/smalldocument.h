#pragma once

#include "code/codedoc/animationcode.h"
#include "code/codedoc/codedocument.h"
#include "code/codedoc/framecode.h"

/// A document in a grammar for tests. Whoever derives from it takes its parser away before that
/// dies.
class SmallDocument : public Zorv::CodeDocument
{
public:
    SmallDocument() : CodeDocument(0)
    {
        setOption(QStringLiteral("parseCode"), true, false, false);
        setOption(QStringLiteral("highlightCode"), true, false, false);
    }
    int projectKind() const override { return 0; }
    int blockFolding(const QString&) const override { return 0; }
    void release() override
    {
        if (m_isReleased) {
            delete this;
            return;
        }
        m_isReleased = true;
        destroy();
    }

private:
    bool m_isReleased = false;
};

/// An animation of a name alone, which lasts as long as its frames.
class SmallAnimation : public Zorv::AnimationCode
{
public:
    SmallAnimation(Zorv::CodeNode* previous, const QString& name)
        : AnimationCode(previous), m_name(name)
    {
    }
    void release() override { delete this; }
    QString name() const override { return m_name; }
    void setName(const QString&) override {}
    QVariant property(const QString& key) const override
    {
        return key == QLatin1String("Identifier") ? QVariant(m_name) : AnimationCode::property(key);
    }
    int duration() const override;
    int loopFrame() const override;

private:
    QString m_name;
};
