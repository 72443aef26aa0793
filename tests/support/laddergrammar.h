#pragma once

#include "code/codedoc/animationcode.h"
#include "code/codedoc/animations.h"
#include "code/codedoc/codeparser.h"
#include "code/codedoc/framecode.h"
#include "code/codedoc/groupcode.h"
#include "code/codedoc/valuecode.h"
#include "support/smalldocument.h"

/// A second grammar, with what the first one lacks:
///
///     !2 name      a group of number 2
///     .3 name      a sub-group of the group above; ..3 one of the sub-group above
///     @name        an animation
///     + picture    a frame; an error but under an animation
///     key: text    a value, under whatever head; it keeps the name of that head. The key "m" is a
///                  child of an animation above it, too
///     ; text       a comment; anything else is an error
///
/// Under `Reuse::All` every node that a line had is brought up to date if it can be, but heads
/// with another name, for that is what the lines below them depend on. Nothing is asked about
/// the node's place.
class LadderGrammar : public Zorv::CodeParser
{
public:
    enum class Reuse { None, All };

    explicit LadderGrammar(Reuse reuse) : m_reuse(reuse) {}
    Zorv::CodeNode* parse(const QString& text, Zorv::CodeNode* oldNode, Zorv::CodeNode* previous,
                          Zorv::RootCode* root, Zorv::CodeParserSyntax* syntax) override;

    /// Lines of every kind, for random texts.
    static QStringList lines();

private:
    Reuse m_reuse;
};

/// A head of whatever depth, built as the guide for hosts says, and nothing more.
class LadderGroup : public Zorv::GroupCode
{
public:
    LadderGroup(Zorv::CodeNode* previous, int depth, unsigned number, const QString& name);
    void release() override { delete this; }
    QString name() const override { return m_name; }
    void setName(const QString&) override {}
    int depth() const { return m_depth; }

private:
    int m_depth;
    QString m_name;
};

class LadderValue : public Zorv::ValueCode
{
public:
    LadderValue(Zorv::CodeNode* previous, bool joins);
    void release() override { delete this; }
    QString name() const override { return m_key; }
    void setName(const QString&) override {}
    bool write(const QVariant& value) override;
    QString unsignedText(unsigned value) const override { return QString::number(value); }
    void take(const QString& line, const QString& head);
    bool joins() const { return m_joins; }

private:
    bool m_joins;
    QString m_key;
};

class LadderAnimation : public Zorv::AnimationCode
{
public:
    LadderAnimation(Zorv::CodeNode* previous, const QString& name)
        : AnimationCode(previous), m_name(name)
    {
    }
    void release() override { delete this; }
    QString name() const override { return m_name; }
    void setName(const QString&) override {}
    int duration() const override { return 0; }
    int loopFrame() const override { return -1; }
    QString frameTemplate(const Zorv::FrameCode*) const override
    {
        return QStringLiteral("; box\n+ new");
    }

private:
    QString m_name;
};

/// A host without a stage: its frames are a name.
class LadderFrame : public Zorv::FrameCode
{
public:
    explicit LadderFrame(Zorv::CodeNode* previous) : FrameCode(previous, nullptr, nullptr) {}
    void release() override { delete this; }
    QVariant property(const QString&) const override { return picture; }
    void setProperty(const QString&, const QVariant&) override {}
    QVariant identifier() const override { return picture; }

    QString picture;
};

class LadderAnimations : public Zorv::Animations
{
    Q_OBJECT

public:
    using Animations::Animations;
    void release() override { delete this; }
    int optimize(bool, QStringList*) override { return 0; }
    QString animationTemplate() const override { return QStringLiteral("@%1\n"); }
};

class LadderDocument : public SmallDocument
{
    Q_OBJECT

public:
    LadderDocument(LadderGrammar::Reuse reuse, const QString& text);
    ~LadderDocument() override { setParser(nullptr); }
    int blockFolding(const QString& line) const override;

private:
    LadderGrammar m_grammar;
};
